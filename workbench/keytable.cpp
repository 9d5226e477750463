#include "workbench/keytable.h"

#include "workbench/frmmain.h"

#include <algorithm>
#include <array>

std::span<const KeyCommand> KeyTable() {
    using Command = KeyCommand;
    static constexpr std::array commands{
        Command{Qt::Key_F1, any, [](frmMain& window) { Q_EMIT window.HelpAsked(false); }},
        Command{Qt::Key_F2, any, [](frmMain& window) { window.cmdMakeBarre_Click(); }},
        Command{Qt::Key_F3, shiftKey, [](frmMain& window) { window.cmdFindChord_Click(); }},
        Command{Qt::Key_F3, any, [](frmMain& window) { window.cmdFind_Click(); }},
        Command{Qt::Key_F4, any, [](frmMain& window) { window.cmdFindNew_Click(); }},
        Command{Qt::Key_F5, any, [](frmMain& window) { window.GoldButton1_Click(); },
                Held::OnePress},
        Command{Qt::Key_F6, any, [](frmMain& window) { window.GoldButton2_Click(); },
                Held::OnePress},
        Command{Qt::Key_Return, ctrlKey, [](frmMain& window) { window.cmdStrum_Click(); },
                Held::OnePress},
        Command{Qt::Key_Enter, ctrlKey, [](frmMain& window) { window.cmdStrum_Click(); },
                Held::OnePress},
        Command{Qt::Key_F7, any, [](frmMain& window) { window.GoldButton3_Click(); }},
        Command{Qt::Key_F8, any, [](frmMain& window) { window.Command1_Click(); }},
        Command{Qt::Key_F9, any, [](frmMain& window) { window.Command2_Click(); }},
        Command{Qt::Key_F10, any, [](frmMain& window) { Q_EMIT window.SettingsAsked(); }},
        Command{Qt::Key_F11, any, [](frmMain& window) { Q_EMIT window.VoicingsAsked(); }},
        Command{Qt::Key_F12, any, [](frmMain& window) { window.cmdRings_Click(); }},
        Command{Qt::Key_F, ctrlKey, [](frmMain& window) { window.GoToFind(); }},
        Command{Qt::Key_Z, ctrlKey, [](frmMain& window) { window.Undo(); }},
        Command{Qt::Key_Z, ctrlKey | shiftKey, [](frmMain& window) { window.Redo(); }},
        Command{Qt::Key_PageDown, ctrlKey, [](frmMain& window) { window.StepVoicing(1); }},
        Command{Qt::Key_PageUp, ctrlKey, [](frmMain& window) { window.StepVoicing(-1); }},
        Command{Qt::Key_D, ctrlKey, [](frmMain& window) { Q_EMIT window.AddToSheetAsked(); }},
        Command{Qt::Key_Down, ctrlKey, [](frmMain& window) { window.StepRoot(1); }},
        Command{Qt::Key_Up, ctrlKey, [](frmMain& window) { window.StepRoot(-1); }},
        Command{Qt::Key_Down, altKey, [](frmMain& window) { window.StepType(1); }},
        Command{Qt::Key_Up, altKey, [](frmMain& window) { window.StepType(-1); }},
        Command{Qt::Key_Down, shiftKey, [](frmMain& window) { window.StepString(-1); }},
        Command{Qt::Key_Up, shiftKey, [](frmMain& window) { window.StepString(1); }},
        Command{Qt::Key_Left, shiftKey, [](frmMain& window) { window.StepBarre(-1); }},
        Command{Qt::Key_Right, shiftKey, [](frmMain& window) { window.StepBarre(1); }},
    };
    return commands;
}

const KeyCommand* FindCommand(int key, int shift) {
    const auto table = KeyTable();
    const auto command =
        std::find_if(table.begin(), table.end(), [key, shift](const KeyCommand& row) {
            return row.key == key && (row.shift == shift || row.shift == any);
        });
    return command != table.end() ? &*command : nullptr;
}
