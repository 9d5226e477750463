// Every shipped language in the real windows: no caption is clipped, no control without a text.
#include "controls/application.h"
#include "controls/textlabel.h"
#include "controls/windowtexts.h"
#include "diagrams/frmdiags.h"
#include "info/frmhelp.h"
#include "settings/frmsettings.h"
#include "support/mainwindow.h"
#include "voicings/frmvoicings.h"

#include <QAbstractButton>

class CaptionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Languages_data();
    void Languages();
};

namespace {

// Controls that show a state or a picture, and so have no text of their own.
const QStringList withoutText{QStringLiteral("lblHint"), QStringLiteral("Label1"),
                              QStringLiteral("lblFound"), QStringLiteral("lblSaved")};

// The controls that a user can read or work, and that nothing says what they are for.
QStringList Textless(const QWidget& window) {
    QStringList textless;
    for (const auto* control : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(control);
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const auto* frame = qobject_cast<const QGroupBox*>(control);
        const QString name = control->objectName();
        const bool mine =
            !name.isEmpty() && !name.startsWith(u"qt_") && !withoutText.contains(name) &&
            (label != nullptr || frame != nullptr || control->focusPolicy() != Qt::NoFocus);
        const QString said = control->toolTip() + control->accessibleName() +
                             (label != nullptr ? label->text() : QString()) +
                             (button != nullptr ? button->text() : QString()) +
                             (frame != nullptr ? frame->title() : QString());
        if (mine && said.isEmpty())
            textless += name;
    }
    return textless;
}

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
        main.window.ShowTexts(TextsInUse(main.state));
    }
    // The window system takes its time to give a window its size.
    main.window.resize(main.window.minimumSizeHint());
    QCoreApplication::processEvents();
    QTRY_COMPARE(Clipped(main.window), QString());
    QCOMPARE(Textless(main.window), QStringList());
    QVERIFY(main.window.minimumSizeHint().width() <= 1024);
    QVERIFY(main.window.minimumSizeHint().height() <= 560);

    frmSettings settings(main.state, main.midi, main.clock, [](const Settings&) {});
    settings.Form_Load();
    settings.show();
    QCoreApplication::processEvents();
    QTRY_COMPARE(Clipped(settings), QString());
    QCOMPARE(Textless(settings), QStringList());
    QVERIFY(settings.width() <= 1024 && settings.height() <= 560);

    frmVoicings voicings(main.state);
    voicings.show();
    voicings.ShowState(main.workbench.ToPlay(), {}, {}, {});
    QCoreApplication::processEvents();
    QTRY_COMPARE(Clipped(voicings), QString());
    QCOMPARE(Textless(voicings), QStringList());

    frmDiags sheet(main.state, [] { return BoardFingering(); });
    sheet.show();
    QCoreApplication::processEvents();
    QTRY_COMPARE(Clipped(sheet), QString());
    QCOMPARE(Textless(sheet), QStringList());

    frmHelp help(main.state, [] { return ChordRows{12, 50}; });
    help.show();
    QCoreApplication::processEvents();
    QTRY_COMPARE(Clipped(help), QString());
    QCOMPARE(Textless(help), QStringList());
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    CaptionsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "captions_test.moc"
