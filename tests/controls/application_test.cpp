// The toolkit's own texts follow the interface's language.
#include "controls/application.h"

#include <QLibraryInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

class ApplicationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void MessageBoxesSpeakTheInterfacesLanguage();
};

void ApplicationTest::MessageBoxesSpeakTheInterfacesLanguage() {
    if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) +
                       QStringLiteral("/qtbase_ru.qm")))
        QSKIP("the toolkit's translations are not on this computer");
    const auto yes = [] {
        QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No);
        return box.button(QMessageBox::Yes)->text().remove(u'&');
    };
    auto* application = static_cast<Application*>(qApp);
    application->SetTongue(Tongue::Russian);
    QCOMPARE(yes(), QStringLiteral("Да"));
    application->SetTongue(Tongue::English);
    QCOMPARE(yes(), QStringLiteral("Yes"));
    application->SetTongue(Tongue::Russian);
    application->SetTongue(Tongue::Russian);
    QCOMPARE(yes(), QStringLiteral("Да"));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    ApplicationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "application_test.moc"
