// Texts of any length and of any look: shown as they stand, cut only in painting, and never
// larger than the screen.
#include "controls/application.h"
#include "controls/dropdown.h"
#include "controls/goldbutton.h"
#include "controls/listbox.h"
#include "controls/messagebox.h"
#include "controls/textlabel.h"
#include "controls/tooltip.h"
#include "support/dialogs.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QToolTip>

namespace {

const QString markUp = QStringLiteral("<b>x</b>");

QString Letters(qsizetype count) {
    return QString(count, u'W');
}

QImage Painted(QWidget& widget) {
    return widget.grab().toImage();
}

// Asks for a tool tip as a resting pointer does; its window, or none.
QWidget* ToolTipAt(QWidget& widget, QPoint place) {
    QHelpEvent rest(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &rest);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() == Qt::ToolTip)
            return window;
    return nullptr;
}

QSize Screen() {
    return QGuiApplication::primaryScreen()->availableGeometry().size();
}

} // namespace

class LongTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QToolTip::hideText(); }

    void ALabelShowsMarkUpAsItStands();
    void ALabelKeepsItsTextWhole();
    void ALabelGrowsOnlySoFar();
    void ALabelThatFitsIsNotCut();
    void TheEndOfACutLabelIsInItsToolTip();
    void AToolTipIsShownAsItStands();
    void AToolTipStaysOnTheScreen_data();
    void AToolTipStaysOnTheScreen();
    void AToolTipBreaksWordsOnlyWhereItMust();
    void CaptionsWidenNoWindow_data();
    void CaptionsWidenNoWindow();
    void ALongCaptionIsCutInTheMiddleOfItsButton();
    void ARowTooLongForItsListIsReadInItsToolTip();
    void ARowThatFitsLeavesTheListItsToolTip();
    void ABoxStaysOnTheScreen_data();
    void ABoxStaysOnTheScreen();
    void AShortTextIsShownByTheBoxItself();
    void ALongTextCanBeScrolled();
};

void LongTextsTest::ALabelShowsMarkUpAsItStands() {
    TextLabel label(QStringLiteral("label"));
    label.resize(200, 30);
    label.setText(markUp);
    const QImage shown = Painted(label);
    label.setText(QStringLiteral("x"));
    QVERIFY(shown != Painted(label));
    QCOMPARE(label.textFormat(), Qt::PlainText);
}

void LongTextsTest::ALabelKeepsItsTextWhole() {
    TextLabel label(QStringLiteral("label"));
    label.setText(Letters(3000));
    label.resize(100, 30);
    Painted(label);
    QCOMPARE(label.text(), Letters(3000));
    QVERIFY(label.IsCut());
}

void LongTextsTest::ALabelGrowsOnlySoFar() {
    TextLabel label(QStringLiteral("label"));
    label.setText(Letters(3000));
    const int letter = label.fontMetrics().averageCharWidth();
    QVERIFY(label.sizeHint().width() <= 60 * letter);
    QVERIFY(label.minimumSizeHint().width() <= 26 * letter);
    QCOMPARE(label.sizeHint().height(), label.fontMetrics().height());
}

void LongTextsTest::ALabelThatFitsIsNotCut() {
    for (const char16_t* text : {u"", u"C", u"F#m7b5", u"Недостающие звуки:"}) {
        TextLabel label(QStringLiteral("label"));
        label.setText(QString::fromUtf16(text));
        label.resize(label.minimumSizeHint());
        QVERIFY(!label.IsCut());
    }
}

void LongTextsTest::TheEndOfACutLabelIsInItsToolTip() {
    TextLabel label(QStringLiteral("label"));
    label.resize(100, 30);
    label.show();
    label.setText(QStringLiteral("Bb"));
    QVERIFY(ToolTipAt(label, {5, 5}) == nullptr);
    label.setText(QStringLiteral("the beginning of a long name and its end"));
    QVERIFY(ToolTipAt(label, {5, 5}) != nullptr);
    QVERIFY(QToolTip::text().contains(QStringLiteral("its end")));
    label.setToolTip(QStringLiteral("other names")); // One of its own stays.
    QVERIFY(ToolTipAt(label, {5, 5}) != nullptr);
    QVERIFY(QToolTip::text().contains(QStringLiteral("other names")));
    QCOMPARE(label.toolTip(), QStringLiteral("other names"));
}

void LongTextsTest::AToolTipIsShownAsItStands() {
    TextLabel label(QStringLiteral("label"));
    label.resize(100, 30);
    label.show();
    label.setToolTip(markUp);
    QVERIFY(ToolTipAt(label, {5, 5}) != nullptr);
    QVERIFY(QToolTip::text().contains(markUp.toHtmlEscaped()));
    QCOMPARE(label.toolTip(), markUp);
}

void LongTextsTest::AToolTipStaysOnTheScreen_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("one word") << Letters(3000);
    QTest::newRow("many lines") << QString(300, u'\n').replace(u'\n', QStringLiteral("a name\n"));
    QTest::newRow("many words") << QString(3000, u' ').replace(u' ', QStringLiteral("word "));
    QTest::newRow("two million letters") << Letters(2000000);
}

void LongTextsTest::AToolTipStaysOnTheScreen() {
    QFETCH(const QString, text);
    TextLabel label(QStringLiteral("label"));
    label.resize(100, 30);
    label.show();
    label.setToolTip(text);
    const QWidget* tip = ToolTipAt(label, {5, 5});
    QVERIFY(tip != nullptr);
    QVERIFY(QToolTip::text().contains(QChar(0x2026))); // So much does not fit.
    QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(tip->geometry()));
    QCOMPARE(label.toolTip(), text);
}

void LongTextsTest::AToolTipBreaksWordsOnlyWhereItMust() {
    const QFont font = QToolTip::font();
    const int width = QFontMetrics(font).horizontalAdvance(QStringLiteral("minor minor ")) + 2;
    QCOMPARE(ToolTipMarkup(QStringLiteral("minor minor minor"), font, {width, 500}),
             QStringLiteral("<p style='white-space:pre'>minor minor \nminor</p>"));
    QVERIFY(ToolTipMarkup(Letters(50), font, {width, 500}).count(u'\n') > 2);
}

void LongTextsTest::CaptionsWidenNoWindow_data() {
    QTest::addColumn<QString>("kind");
    for (const char16_t* kind :
         {u"frame", u"option", u"check box", u"button", u"GoldButton", u"drop-down list", u"label"})
        QTest::newRow(qPrintable(QString::fromUtf16(kind))) << QString::fromUtf16(kind);
}

void LongTextsTest::CaptionsWidenNoWindow() {
    QFETCH(const QString, kind);
    const QString caption = Letters(255);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    if (kind == QStringLiteral("frame"))
        layout->addWidget(new QGroupBox(caption));
    else if (kind == QStringLiteral("option"))
        layout->addWidget(new QRadioButton(caption));
    else if (kind == QStringLiteral("check box"))
        layout->addWidget(new QCheckBox(caption));
    else if (kind == QStringLiteral("button"))
        layout->addWidget(new QPushButton(caption));
    else if (kind == QStringLiteral("label"))
        layout->addWidget(new TextLabel(caption));
    else if (kind == QStringLiteral("GoldButton"))
        layout->addWidget(new GoldButton(caption));
    else {
        auto* list = new DropDown(QStringLiteral("list"));
        list->SetTexts({caption});
        list->SelectRow(0);
        QCOMPARE(list->currentText(), caption);
        layout->addWidget(list);
    }
    window.show();
    QVERIFY(window.minimumSizeHint().width() < 450);
    QVERIFY(window.width() < 700);
}

void LongTextsTest::ALongCaptionIsCutInTheMiddleOfItsButton() {
    GoldButton button(QStringLiteral("button"));
    button.SetCaption(Letters(255));
    button.SetForeColor(OleColor::Rgb(200, 0, 0));
    QFont hard = button.font(); // Letters without grey edges can be found.
    hard.setStyleStrategy(QFont::NoAntialias);
    button.setFont(hard);
    button.resize(400, 40);
    const QImage image = Painted(button);
    int first = image.width();
    int last = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            if (image.pixelColor(x, y) == QColor(200, 0, 0)) {
                first = std::min(first, x);
                last = x;
            }
    QVERIFY(first < 20 && last > 365); // As much as there is room for,
    QVERIFY(last < 400 - 5);           // and nothing over the edge.
}

void LongTextsTest::ARowTooLongForItsListIsReadInItsToolTip() {
    ListBox list(QStringLiteral("list"));
    const QString same = QStringLiteral("a language of a very long name - ");
    list.SetTexts(
        {same + QStringLiteral("one.lng"), same + QStringLiteral("two.lng"), Letters(3000)});
    list.resize(150, 200);
    list.show();
    const auto tip = [&list](int row) {
        const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
        return ToolTipAt(*list.viewport(), place);
    };
    QVERIFY(tip(0) != nullptr);
    QVERIFY(QToolTip::text().contains(QStringLiteral("one.lng")));
    QVERIFY(tip(1) != nullptr);
    QVERIFY(QToolTip::text().contains(QStringLiteral("two.lng")));
    QVERIFY(tip(2) != nullptr);
    QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(tip(2)->geometry()));
    QCOMPARE(list.RowText(2), Letters(3000));
}

void LongTextsTest::ARowThatFitsLeavesTheListItsToolTip() {
    ListBox list(QStringLiteral("list"));
    list.SetTexts({QStringLiteral("C")});
    list.setToolTip(QStringLiteral("Root note"));
    list.resize(150, 200);
    list.show();
    const QPoint place = list.visualRect(list.model()->index(0, 0)).center();
    QVERIFY(ToolTipAt(*list.viewport(), place) != nullptr);
    QCOMPARE(QToolTip::text(), QStringLiteral("Root note"));
}

void LongTextsTest::ABoxStaysOnTheScreen_data() {
    AToolTipStaysOnTheScreen_data();
    QTest::newRow("a path without a blank") << QStringLiteral("/") + Letters(250);
}

void LongTextsTest::ABoxStaysOnTheScreen() {
    QFETCH(const QString, text);
    MessageBox box(QMessageBox::Information, QStringLiteral("title"), text, QMessageBox::Ok);
    QSize size;
    WhenModal<QMessageBox>([&](QMessageBox* shown) {
        size = shown->frameGeometry().size();
        shown->button(QMessageBox::Ok)->click();
    });
    box.exec();
    QVERIFY(size.isValid());
    QVERIFY(size.width() <= Screen().width());
    QVERIFY(size.height() <= Screen().height());
    QCOMPARE(box.text(), text);
}

void LongTextsTest::AShortTextIsShownByTheBoxItself() {
    MessageBox box(QMessageBox::Information, QStringLiteral("title"), markUp, QMessageBox::Ok);
    box.show();
    QVERIFY(box.findChild<QPlainTextEdit*>() == nullptr);
    QVERIFY(box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->isVisible());
    QCOMPARE(box.textFormat(), Qt::PlainText);
}

void LongTextsTest::ALongTextCanBeScrolled() {
    const QString text = QString(300, u'\n').replace(u'\n', QStringLiteral("a name\n"));
    MessageBox box(QMessageBox::Information, QStringLiteral("title"), text, QMessageBox::Ok);
    box.show();
    const auto* shown = box.findChild<QPlainTextEdit*>();
    QVERIFY(shown != nullptr);
    QVERIFY(shown->isVisible());
    QCOMPARE(shown->toPlainText(), text);
    QVERIFY(!box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->isVisible());
    QVERIFY(static_cast<QPushButton*>(box.button(QMessageBox::Ok))->isDefault());
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    LongTextsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "longtexts_test.moc"
