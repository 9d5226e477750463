// One table gives a window its texts: where each comes from, and where on a control it goes.
#include "controls/goldbutton.h"
#include "controls/windowtexts.h"
#include "core/mdlmain.h"
#include "support/testfolder.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace {

using enum TextPlace;

constexpr std::array table{
    Ours(u"frmTest", Caption, u"Окно", u"Window"),
    OfFile(u"Frame1", Caption, 1, u"Рамка"),
    Ours(u"Frame1", Name, u"Имя", u"Name"),
    OfFile(u"cmdTest", Caption, 2, u"Кнопка"),
    Ours(u"cmdTest", Hint, u"Нажмите", u"Press"),
    Ours(u"cmdPicture", Hint, u"Картинка", u"Picture"),
    Ours(u"cmdPicture", Description, u"Как", u"How"),
    Ours(u"txtTest", Caption, u"Введите", u"Enter"),
    OfFile(u"lstTest", Item, 4, u"раз"),
    OfFile(u"lstTest", Item, 3, u"два"),
    OfFile(u"lstNumbers", Numbered, 5, u"лад", 3),
    Ours(u"Label3()", Hint, u"Лад %1", u"Fret %1"),
};

} // namespace

class WindowTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void BuiltInTexts();
    void TextsOfAFile();
    void AKeyThatTheFileLacks();
    void AnotherLanguageTakesTheirPlace();

private:
    template <typename Control>
    Control* Make(const char16_t* name) {
        auto* control = new Control(m_window.get());
        control->setObjectName(QString::fromUtf16(name));
        return control;
    }
    // Shows the table's texts, those of a language file where one is named.
    void Show(const QString& file = {}) {
        AppState state;
        if (!file.isEmpty())
            state.LanguageFile = m_folder.Path(file);
        ApplyTexts(*m_window, table, QStringLiteral("Test"), TextsInUse(state));
    }

    TestFolder m_folder;
    std::unique_ptr<QWidget> m_window;
    QGroupBox* m_frame = nullptr;
    GoldButton* m_button = nullptr;
    GoldButton* m_picture = nullptr;
    QLineEdit* m_text = nullptr;
    QComboBox* m_list = nullptr;
    QComboBox* m_numbers = nullptr;
    QLabel* m_second = nullptr;
};

void WindowTextsTest::initTestCase() {
    QVERIFY(m_folder.Write(QStringLiteral("test.lng"),
                           "[Test]\n1=frame\n2=button\n3=two\n4=one\n5=%1 fret\n"));
}

void WindowTextsTest::init() {
    m_window = std::make_unique<QWidget>();
    m_window->setObjectName(QStringLiteral("frmTest"));
    m_frame = Make<QGroupBox>(u"Frame1");
    m_button = new GoldButton(QStringLiteral("cmdTest"), m_window.get());
    m_picture = new GoldButton(QStringLiteral("cmdPicture"), m_window.get());
    m_picture->SetCaption(QString());
    m_text = Make<QLineEdit>(u"txtTest");
    m_list = Make<QComboBox>(u"lstTest");
    m_numbers = Make<QComboBox>(u"lstNumbers");
    Make<QLabel>(u"Label3(0)");
    m_second = Make<QLabel>(u"Label3(1)");
}

void WindowTextsTest::BuiltInTexts() {
    Show();
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Окно"));
    QCOMPARE(m_frame->title(), QStringLiteral("Рамка"));
    QCOMPARE(m_frame->accessibleName(), QStringLiteral("Имя"));
    QCOMPARE(m_button->Caption(), QStringLiteral("Кнопка"));
    QCOMPARE(m_button->toolTip(), QStringLiteral("Нажмите"));
    QCOMPARE(m_button->accessibleName(), QStringLiteral("Кнопка"));
    QCOMPARE(m_button->accessibleDescription(), QStringLiteral("Нажмите"));
    QCOMPARE(m_picture->accessibleName(), QStringLiteral("Картинка"));
    QCOMPARE(m_picture->accessibleDescription(), QStringLiteral("Как"));
    QCOMPARE(m_text->text(), QStringLiteral("Введите"));
    QCOMPARE(m_list->count(), 2);
    QCOMPARE(m_list->itemText(1), QStringLiteral("два"));
    QCOMPARE(m_list->currentIndex(), -1);
    QCOMPARE(m_numbers->count(), 3);
    QCOMPARE(m_numbers->itemText(2), QStringLiteral("3 лад"));
    QCOMPARE(m_second->toolTip(), QStringLiteral("Лад 2"));
}

void WindowTextsTest::TextsOfAFile() {
    Show(QStringLiteral("test.lng"));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Window"));
    QCOMPARE(m_frame->title(), QStringLiteral("frame"));
    QCOMPARE(m_frame->accessibleName(), QStringLiteral("Name"));
    QCOMPARE(m_button->Caption(), QStringLiteral("button"));
    QCOMPARE(m_button->accessibleName(), QStringLiteral("button"));
    QCOMPARE(m_button->toolTip(), QStringLiteral("Press"));
    QCOMPARE(m_list->itemText(0), QStringLiteral("one"));
    QCOMPARE(m_list->itemText(1), QStringLiteral("two"));
    QCOMPARE(m_numbers->itemText(0), QStringLiteral("1 %1 fret")); // A file's text as it stands.
    QCOMPARE(m_second->toolTip(), QStringLiteral("Fret 2"));
}

void WindowTextsTest::AKeyThatTheFileLacks() {
    QVERIFY(m_folder.Write(QStringLiteral("empty.lng"), "[Test]\n"));
    Show(QStringLiteral("empty.lng"));
    QCOMPARE(m_frame->title(), missingLanguageText);
    QCOMPARE(m_list->itemText(1), missingLanguageText);
    QCOMPARE(m_picture->toolTip(), QStringLiteral("Picture"));
}

void WindowTextsTest::AnotherLanguageTakesTheirPlace() {
    Show(QStringLiteral("test.lng"));
    Show();
    BuiltInTexts();
}

QTEST_MAIN(WindowTextsTest)
#include "windowtexts_test.moc"
