// The same hand on a left-handed neck: whatever is done in mirrored places, both necks hold the
// same.
#include "controls/application.h"
#include "core/runtimeerror.h"
#include "invariants.h"
#include "support/mainwindow.h"

#include <random>

class MirroredTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BothHandsDoTheSame();

private:
    int Pick(int count) { return static_cast<int>(m_random() % static_cast<quint32>(count)); }
    void Act();
    template <typename Action>
    void InBoth(Action action) {
        for (MainWindow* main : {&m_right, &m_left})
            try {
                action(*main);
            } catch (const RunTimeError&) {
                // What the one refuses, the other has to refuse as well.
            }
    }

    MainWindow m_right;
    MainWindow m_left;
    std::mt19937 m_random{20'261'121};
};

// On the board, places count from the nut; everything else is where it is for either hand.
void MirroredTest::Act() {
    const double across = Pick(FretboardLayout::size.toSize().width());
    const double down = Pick(FretboardLayout::size.toSize().height());
    const auto button = Pick(6) == 0 ? Qt::RightButton : Qt::LeftButton;
    const int n = Pick(64);
    const auto place = [=](const MainWindow& main) {
        return QPointF(FretboardLayout{.leftHanded = main.state.LeftHanded}.FromNut(across), down);
    };
    switch (Pick(14)) {
    case 0:
        return InBoth([=](MainWindow& main) { main.Press(main.board, place(main), button); });
    case 1:
        return InBoth([=](MainWindow& main) { main.Move(main.board, place(main)); });
    case 2:
        return InBoth([=](MainWindow& main) { main.Release(main.board, place(main), button); });
    case 3:
        return InBoth([=](MainWindow& main) { main.window.Label3_Click(n % 15); });
    case 4:
        return InBoth([=](MainWindow& main) { main.window.Label6_MouseDown(n % 6, button); });
    case 5:
        return InBoth([=](MainWindow& main) {
            main.Click(main.keyboard, QPointF(across, n % 2 * 1300.0), button);
        });
    case 6:
        return InBoth([=](MainWindow& main) { main.window.lstBase->SelectRow(n % 12); });
    case 7:
        return InBoth([=](MainWindow& main) { main.window.lstType->SelectRow(n); });
    case 8:
        return InBoth([=](MainWindow& main) { main.window.lstLad->SelectRow(n % 20); });
    case 9:
        return InBoth([](MainWindow& main) { main.window.cmdMakeBarre_Click(); });
    case 10:
        return InBoth([=](MainWindow& main) {
            const int rows = main.window.lstVoicings->Rows().rowCount();
            if (rows > 0)
                main.window.lstVoicings_Click(n % rows);
        });
    case 11:
        return InBoth(
            [=](MainWindow& main) { n % 2 > 0 ? main.window.Undo() : main.window.Redo(); });
    case 12:
        return InBoth([=](MainWindow& main) {
            constexpr std::array keys{Qt::Key_F2, Qt::Key_F3,   Qt::Key_F4,   Qt::Key_F8,
                                      Qt::Key_F9, Qt::Key_F12,  Qt::Key_Left, Qt::Key_Right,
                                      Qt::Key_Up, Qt::Key_Down, Qt::Key_Plus, Qt::Key_Minus};
            main.window.Form_KeyDown(keys[static_cast<std::size_t>(n) % keys.size()], n % 3);
        });
    default:
        return InBoth([=](MainWindow& main) { main.window.lstLadBarre_Click(n % 15); });
    }
}

void MirroredTest::BothHandsDoTheSame() {
    m_left.state.LeftHanded = true;
    m_left.window.ShowState();
    for (int action = 0; action < 1500; ++action) {
        Act();
        QVERIFY2(BrokenMirror(m_right.workbench, m_left.workbench).isEmpty(),
                 qPrintable(QStringLiteral("action %1: %2")
                                .arg(action)
                                .arg(BrokenMirror(m_right.workbench, m_left.workbench))));
    }
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    MirroredTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "mirrored_test.moc"
