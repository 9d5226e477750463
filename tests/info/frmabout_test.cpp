// About: its texts in both languages, the count of chords and the mail link.
#include "controls/application.h"
#include "core/language.h"
#include "core/mdlmain.h"
#include "core/runtimeerror.h"
#include "info/frmabout.h"
#include "info/linklabel.h"

#include <QLabel>
#include <QTest>
#include <QUrl>

namespace {

const Author someone{{QStringLiteral("Анна"), QStringLiteral("Anna")},
                     QStringLiteral("anna@example.org")};
constexpr ChordRows someRows{12, 40};

AppState StateIn(const QString& languageFile) {
    AppState state;
    state.LanguageFile = languageFile;
    return state;
}

AppState Russian() {
    return StateIn(defaultLanguage);
}

AppState English() {
    return StateIn(QStringLiteral("/nowhere/english.lng"));
}

QStringList Opened(frmAbout& about, const std::function<void()>& action) {
    QStringList opened;
    about.SetOpenLink([&opened](const QUrl& link) { opened += link.toString(); });
    action();
    return opened;
}

void ShowActive(QWidget& window) {
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace

class FrmAboutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ChordsAreCounted_data() {
        QTest::addColumn<int>("roots");
        QTest::addColumn<int>("types");
        QTest::addColumn<int>("count");
        QTest::newRow("roots times types") << 12 << 40 << 480;
        QTest::newRow("empty lists") << 0 << 0 << 0;
        QTest::newRow("the most that 16 bits hold") << 1 << 32767 << 32767;
    }
    void ChordsAreCounted() {
        QFETCH(const int, roots);
        QFETCH(const int, types);
        QFETCH(const int, count);
        QCOMPARE(int{ChordCount({roots, types})}, count);
        const frmAbout about(Russian(), {roots, types});
        QCOMPARE(about.Label7->text(), QStringLiteral("Всего уникальных аккордов: %1").arg(count));
    }

    void TooManyChordsOverflow_data() {
        QTest::addColumn<int>("roots");
        QTest::addColumn<int>("types");
        QTest::newRow("one more than 16 bits hold") << 2 << 16384;
        QTest::newRow("more than 32 bits hold") << 100'000 << 100'000;
    }
    void TooManyChordsOverflow() {
        QFETCH(const int, roots);
        QFETCH(const int, types);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, ChordCount({roots, types}));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, frmAbout(Russian(), {roots, types}));
    }

    void TheRussianTextsStandAsWritten() {
        const frmAbout about(Russian(), someRows, someone);
        QCOMPARE(about.objectName(), QStringLiteral("frmAbout"));
        QCOMPARE(about.windowTitle(), QStringLiteral("О программе"));
        QCOMPARE(about.Label1->text(), QStringLiteral("Тонвик"));
        QCOMPARE(about.Label2->text(), QStringLiteral("Версия 2.1-beta, платформа: Win9x/NT"));
        QCOMPARE(about.Label3->text(), QStringLiteral("Автор программы: Анна, "));
        QCOMPARE(about.Label4->text(), someone.email);
        QCOMPARE(about.Label5->text(),
                 QStringLiteral("Программа распространяется бесплатно и «как есть»: автор не несёт "
                                "ответственности за последствия её использования."));
        QCOMPARE(about.Label6->text(),
                 QStringLiteral("Присылайте, пожалуйста, свои замечания и пожелания. Я, по "
                                "возможности, отвечу Вам."));
        QCOMPARE(about.Label7->text(), QStringLiteral("Всего уникальных аккордов: 480"));
    }

    void TheEnglishTextsStandAsWritten() {
        const frmAbout about(English(), someRows, someone);
        QCOMPARE(about.windowTitle(), QStringLiteral("About"));
        QCOMPARE(about.Label1->text(), QStringLiteral("Tonvik"));
        QCOMPARE(about.Label2->text(), QStringLiteral("Version 2.1-beta, platform Win9x/NT"));
        QCOMPARE(about.Label3->text(), QStringLiteral("Author of program: Anna"));
        QCOMPARE(about.Label4->text(), someone.email);
        QCOMPARE(about.Label5->text(),
                 QStringLiteral("This program is distributed free of charge and \"as is\": its "
                                "author accepts no responsibility for the consequences of using "
                                "it."));
        QCOMPARE(about.Label6->text(),
                 QStringLiteral("If you have any questions, comments or suggestions, please mail "
                                "them to me at the address above. I will try to fix any bugs or "
                                "implement suggestions I receive (within reason)."));
        QCOMPARE(about.Label7->text(), QStringLiteral("Chords at this time: 480"));
    }

    void EveryControlIsFoundByItsName() {
        const frmAbout about(Russian(), someRows);
        for (int number = 1; number <= 7; ++number)
            QVERIFY(about.findChild<QLabel*>(QStringLiteral("Label%1").arg(number)) != nullptr);
        for (const auto& name :
             {QStringLiteral("Line1(0)"), QStringLiteral("Line1(1)"), QStringLiteral("cmdOK")})
            QVERIFY(about.findChild<QWidget*>(name) != nullptr);
    }

    void TheAuthorIsNamed() {
        const frmAbout russian(Russian(), someRows);
        QCOMPARE(russian.Label3->text(),
                 QStringLiteral("Автор программы: разработчики программы «Тонвик», "));
        const frmAbout english(English(), someRows);
        QCOMPARE(english.Label3->text(),
                 QStringLiteral("Author of program: The Tonvik developers"));
    }

    void AnAuthorWithoutAddressIsNoLink() {
        frmAbout about(Russian(), someRows);
        ShowActive(about);
        QVERIFY(about.Label3->isVisible());
        QCOMPARE(about.Label4->text(), QString());
        QVERIFY(!about.Label4->isVisible());
        QTest::keyClick(&about, Qt::Key_Tab);
        QVERIFY(!about.Label4->hasFocus());
    }

    void AClickOnTheAddressWritesToTheAuthor() {
        frmAbout about(Russian(), someRows, someone);
        ShowActive(about);
        QCOMPARE(Opened(about, [&] { QTest::mouseClick(about.Label4, Qt::LeftButton); }),
                 QStringList{QStringLiteral("mailto:anna@example.org")});
        QVERIFY(about.isVisible());
    }

    void APressThatEndsOutsideWritesNothing() {
        frmAbout about(Russian(), someRows, someone);
        ShowActive(about);
        QCOMPARE(Opened(about,
                        [&] {
                            QTest::mousePress(about.Label4, Qt::LeftButton);
                            QTest::mouseRelease(about.Label4, Qt::LeftButton, {}, {-5, -5});
                            QTest::mouseClick(about.Label4, Qt::RightButton);
                        }),
                 QStringList());
    }

    void TheAddressIsReachedByKeyboard() {
        frmAbout about(Russian(), someRows, someone);
        ShowActive(about);
        QTest::keyClick(about.focusWidget(), Qt::Key_Tab);
        QVERIFY(about.Label4->hasFocus());
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space})
            QCOMPARE(Opened(about, [&] { QTest::keyClick(about.Label4, key); }).size(), 1);
        QVERIFY(about.isVisible());
    }

    void TheFocusOnTheAddressIsSeen() {
        frmAbout about(Russian(), someRows, someone);
        ShowActive(about);
        const QImage before = about.Label4->grab().toImage();
        about.Label4->setFocus();
        QVERIFY(about.Label4->grab().toImage().pixelColor(0, 0) != before.pixelColor(0, 0));
    }

    void ItCloses_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Escape") << int{Qt::Key_Escape};
        QTest::newRow("Enter") << int{Qt::Key_Return};
        QTest::newRow("Enter of the number pad") << int{Qt::Key_Enter};
        QTest::newRow("a click on cmdOK") << 0;
    }
    void ItCloses() {
        QFETCH(const int, key);
        frmAbout about(Russian(), someRows);
        ShowActive(about);
        if (key == 0)
            QTest::mouseClick(about.findChild<QWidget*>(QStringLiteral("cmdOK")), Qt::LeftButton);
        else
            QTest::keyClick(about.focusWidget(), static_cast<Qt::Key>(key));
        QVERIFY(!about.isVisible());
    }

    void EveryTextFits() {
        const QString name = QStringLiteral("Maximiliane Bartholomäus-Feuerstein");
        const Author longName{{name, name},
                              QStringLiteral("maximiliane@bartholomaeus-feuerstein.example.org")};
        for (const AppState& state : {Russian(), English()}) {
            frmAbout about(state, someRows, longName);
            ShowActive(about);
            for (const auto* label : about.findChildren<QLabel*>()) {
                QVERIFY(about.rect().contains(label->geometry()));
                const QSize needed = label->wordWrap()
                                         ? QSize(0, label->heightForWidth(label->width()))
                                         : label->sizeHint();
                QVERIFY2(label->size().expandedTo(needed) == label->size(),
                         qPrintable(label->objectName()));
            }
        }
    }
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    FrmAboutTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "frmabout_test.moc"
