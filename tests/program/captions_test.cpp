// Every shipped language in the real windows: no caption is clipped.
#include "controls/application.h"
#include "controls/textlabel.h"
#include "info/frmhelp.h"
#include "settings/frmsettings.h"
#include "support/mainwindow.h"

#include <QAbstractButton>

class CaptionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Languages_data();
    void Languages();
};

namespace {

// The first control with a caption that has less room than it asks for; empty for none.
QString Clipped(const QWidget& window) {
    for (const auto* control : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(control);
        const auto* shown = qobject_cast<const TextLabel*>(control);
        if (shown != nullptr && shown->isVisible() && shown->IsCut())
            return shown->objectName();
        const bool captioned =
            (label != nullptr && shown == nullptr && !label->objectName().contains(u'(')) ||
            qobject_cast<const QAbstractButton*>(control) != nullptr ||
            qobject_cast<const QComboBox*>(control) != nullptr;
        if (captioned && control->isVisible() &&
            (control->width() < control->minimumSizeHint().width() ||
             control->height() < control->minimumSizeHint().height()))
            return control->objectName();
        const auto* frame = qobject_cast<const QGroupBox*>(control);
        if (frame != nullptr &&
            frame->fontMetrics().horizontalAdvance(frame->title()) > frame->width())
            return frame->objectName();
    }
    return {};
}

} // namespace

void CaptionsTest::Languages_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("Russian") << QString();
    const QStringList files = LanguageFiles(QStringLiteral(PROGRAM_FOLDER "/"));
    QCOMPARE(files.size(), 5); // Those that are shipped, and built before this test.
    for (const QString& file : files)
        QTest::newRow(qPrintable(file)) << file;
}

void CaptionsTest::Languages() {
    QFETCH(const QString, file);
    MainWindow main;
    main.state.AppPath = QStringLiteral(PROGRAM_FOLDER "/");
    if (!file.isEmpty()) {
        main.state.LanguageFile = main.state.AppPath + file;
        main.window.ApplyLanguage(LanguageTexts(main.state.LanguageFile));
        main.window.ApplyTongue();
    }
    // The window system takes its time to give a window its size.
    main.window.resize(main.window.minimumSizeHint());
    QCoreApplication::processEvents();
    QTRY_COMPARE(Clipped(main.window), QString());
    QVERIFY(main.window.minimumSizeHint().width() <= 1024);
    QVERIFY(main.window.minimumSizeHint().height() <= 560);

    frmSettings settings(main.state, main.midi, main.clock, [](const Settings&) {});
    settings.Form_Load();
    settings.show();
    QCoreApplication::processEvents();
    QTRY_COMPARE(Clipped(settings), QString());
    QVERIFY(settings.width() <= 1024 && settings.height() <= 560);

    frmHelp help(main.state, [] { return ChordRows{12, 50}; });
    help.show();
    QCoreApplication::processEvents();
    QTRY_COMPARE(Clipped(help), QString());
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    CaptionsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "captions_test.moc"
