// The window with every way to play a chord: its filters, its order, its keys.
#include "controls/application.h"
#include "core/settings.h"
#include "voicings/frmvoicings.h"

#include <QSignalSpy>
#include <QTest>

class FrmVoicingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void ShowsAll();
    void FiltersCombine();
    void FiltersStay();
    void StringsThatSound();
    void EveryListSaysWhatIsChosen();
    void EachStateOfAStringIsSeen();
    void NothingPasses();
    void NearTheHand();
    void NearTheHandNotTheNeck();
    void RowsStayWhileOneIsLaid();
    void ClickEnterAndDoubleClick();
    void NextAndPreviousOfItsOwnList();
    void EscapeCloses();
    void Captions();
    void OpensManyAtOnce();

private:
    void Show(const Shape& neck = {}) { Show(neck, neck); }
    void Show(const Shape& neck, const Shape& hand) {
        m_window->ShowState(m_workbench->ToPlay(), m_found, neck, hand);
    }
    QString Text(int row, int role = Qt::DisplayRole) {
        return m_window->lstVoicings->model()->index(row, 0).data(role).toString();
    }
    int Rows() { return m_window->lstVoicings->model()->rowCount(); }
    QPoint Place(int row) {
        return m_window->lstVoicings->visualRect(m_window->lstVoicings->model()->index(row, 0))
            .center();
    }

    AppState m_state;
    std::unique_ptr<Workbench> m_workbench;
    Voicings m_found;
    std::unique_ptr<frmVoicings> m_window;
};

void FrmVoicingsTest::init() {
    m_state = AppState();
    LayStrings(m_state, standardStrings, true);
    m_workbench = std::make_unique<Workbench>(m_state);
    m_workbench->ChooseRoot(0, QStringLiteral("C"));
    m_workbench->ChooseType(0);
    const ChordOnStrings chord = m_workbench->ToPlay().chord;
    m_found = FindVoicings(chord.notes, chord.root, chord.tuning);
    m_window = std::make_unique<frmVoicings>(m_state);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    Show();
}

void FrmVoicingsTest::ShowsAll() {
    QCOMPARE(Rows(), 706);
    QCOMPARE(Text(0), QStringLiteral("x32010"));
    QCOMPARE(Text(0, Qt::UserRole), QStringLiteral("032010"));
    QVERIFY(m_window->lblVoicings->text().contains(QStringLiteral("706")));
    Show(*ReadShape(u"x35553"));
    QCOMPARE(Text(m_window->lstVoicings->CurrentRow()), QStringLiteral("x35553"));
}

void FrmVoicingsTest::FiltersCombine() {
    m_window->lstOpenStrings->SelectRow(2);
    m_window->lstFromFret->SelectRow(2);
    m_window->lstBass->SelectRow(1);
    QCOMPARE(Text(0), QStringLiteral("x35553"));
    const int before = Rows();
    m_window->chkNoBarre->click();
    QVERIFY(Rows() > 0 && Rows() < before);
    QVERIFY(m_window->lblVoicings->text().contains(QString::number(Rows())));
    m_window->cmdAll->click();
    QCOMPARE(Rows(), 706);
}

void FrmVoicingsTest::FiltersStay() {
    m_window->lstBass->SelectRow(2);
    m_window->close();
    m_window->show();
    Show();
    QCOMPARE(m_window->lstBass->currentIndex(), 2);
    QVERIFY(Rows() < 706);
    m_state.LanguageFile = QStringLiteral("english.lng");
    Show();
    QCOMPARE(m_window->lstBass->currentIndex(), 2);
    QCOMPARE(m_window->lstBass->currentText(), QStringLiteral("the third"));
    QVERIFY(Rows() < 706);
}

void FrmVoicingsTest::StringsThatSound() {
    QCheckBox* thick = m_window->chkString[5];
    QCOMPARE(thick->checkState(), Qt::PartiallyChecked);
    thick->setCheckState(Qt::Unchecked);
    for (int row = 0; row < Rows(); ++row)
        QVERIFY(Text(row).startsWith(u'x'));
    thick->setCheckState(Qt::Checked);
    for (int row = 0; row < Rows(); ++row)
        QVERIFY(!Text(row).startsWith(u'x'));
}

void FrmVoicingsTest::EveryListSaysWhatIsChosen() {
    for (const DropDown* list : m_window->Lists())
        QVERIFY2(!list->currentText().isEmpty(), qPrintable(list->objectName()));
    QCOMPARE(m_window->lstOrder->currentText(), QStringLiteral("сначала обычные"));
}

void FrmVoicingsTest::EachStateOfAStringIsSeen() {
    QCheckBox* box = m_window->chkString[0];
    QList<QImage> seen;
    for (const Qt::CheckState state : {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked}) {
        box->setCheckState(state);
        const QImage image = box->grab().toImage();
        QVERIFY2(!seen.contains(image), qPrintable(QString::number(state)));
        seen += image;
    }
}

void FrmVoicingsTest::NothingPasses() {
    for (QCheckBox* box : m_window->chkString)
        box->setCheckState(Qt::Unchecked);
    QCOMPARE(Rows(), 0);
    QVERIFY(m_window->lblVoicings->text().contains(QStringLiteral("706")));
}

void FrmVoicingsTest::NearTheHand() {
    m_window->lstOrder->SelectRow(3);
    Show(*ReadShape(u"x35553"));
    QCOMPARE(Text(0), QStringLiteral("x35553"));
    QVERIFY(Text(1, Qt::ToolTipRole).contains(QStringLiteral("Рука: ")));
    m_window->lstOrder->SelectRow(0);
    QVERIFY(!Text(1, Qt::ToolTipRole).contains(QStringLiteral("Рука: ")));
}

void FrmVoicingsTest::NearTheHandNotTheNeck() {
    m_window->lstOrder->SelectRow(3);
    Show(*ReadShape(u"x35553"), *ReadShape(u"x32010"));
    QCOMPARE(Text(0), QStringLiteral("x32010"));
    QCOMPARE(Text(m_window->lstVoicings->CurrentRow()), QStringLiteral("x35553"));
    QVERIFY(m_window->lstOrder->toolTip().contains(QStringLiteral("вы последним поставили")));
}

void FrmVoicingsTest::RowsStayWhileOneIsLaid() {
    m_window->lstOrder->SelectRow(3);
    Show(*ReadShape(u"x35553"));
    const QString second = Text(4);
    QString laid;
    connect(m_window.get(), &frmVoicings::LayAsked, this, [&](const Shape& shape) {
        laid = FretsText(shape);
        Show(shape);
    });
    QTest::mouseClick(m_window->lstVoicings->viewport(), Qt::LeftButton, {}, Place(4));
    QCOMPARE(laid, second);
    QCOMPARE(Text(4), second);
    QCOMPARE(m_window->lstVoicings->CurrentRow(), 4);
}

void FrmVoicingsTest::ClickEnterAndDoubleClick() {
    const QSignalSpy laid(m_window.get(), &frmVoicings::LayAsked);
    const QSignalSpy strummed(m_window.get(), &frmVoicings::StrumAsked);
    QWidget* viewport = m_window->lstVoicings->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, {}, Place(3));
    QTest::keyClick(m_window->lstVoicings, Qt::Key_Right);
    QCOMPARE(laid.count(), 1); // The arrows only choose.
    QCOMPARE(m_window->lstVoicings->CurrentRow(), 4);
    QTest::keyClick(m_window->lstVoicings, Qt::Key_Return);
    QCOMPARE(laid.count(), 2);
    QCOMPARE(FretsText(laid[1][0].value<Shape>()), Text(4));
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, Place(0));
    QCOMPARE(strummed.count(), 1);
}

void FrmVoicingsTest::NextAndPreviousOfItsOwnList() {
    m_window->chkNoBarre->click();
    QStringList laid;
    connect(m_window.get(), &frmVoicings::LayAsked, this,
            [&](const Shape& shape) { laid += FretsText(shape); });
    m_window->lstVoicings->SetCurrentRow(-1);
    for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown,
                              Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_PageUp})
        QTest::keyClick(m_window->lstBass, key, Qt::ControlModifier);
    QCOMPARE(laid, (QStringList{Text(0), Text(1), Text(2), Text(1), Text(0)}));
    QCOMPARE(m_window->lstVoicings->CurrentRow(), 0);
    QCOMPARE(m_window->lstBass->currentIndex(), 0);
}

void FrmVoicingsTest::EscapeCloses() {
    QTest::keyClick(m_window->lstVoicings, Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
}

void FrmVoicingsTest::Captions() {
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Аппликатуры"));
    m_state.LanguageFile = QStringLiteral("english.lng");
    Show();
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Every way to play it"));
    for (const QWidget* control : m_window->findChildren<QWidget*>())
        if (control->focusPolicy() != Qt::NoFocus && !control->objectName().isEmpty() &&
            !control->objectName().startsWith(u"qt_") && !control->inherits("QCheckBox"))
            QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
}

void FrmVoicingsTest::OpensManyAtOnce() {
    // Open C has the most; only what is visible is painted.
    ChordToPlay playing = m_workbench->ToPlay();
    playing.chord.notes = {0, 4, 7, 10};
    int string = 0;
    for (const PitchClass note : {4, 0, 7, 0, 7, 0}) {
        ++string;
        playing.chord.tuning[static_cast<std::size_t>(string - 1)] = StringTunedTo(string, note);
    }
    const auto found = FindVoicings(playing.chord.notes, 0, playing.chord.tuning);
    m_window->ShowState(playing, found, {}, {});
    QCOMPARE(Rows(), static_cast<int>(found.shapes.size()));
    QVERIFY(Rows() > 2000);
    m_window->lstVoicings->BringIntoView(Rows() - 1);
    QVERIFY(m_window->lstVoicings->viewport()->rect().contains(Place(Rows() - 1)));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    FrmVoicingsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "frmvoicings_test.moc"
