// The pictures on the buttons: one family of line drawings, sharp at every size.
#pragma once

#include <QIcon>

enum class Icon {
    Find,
    NameChord,
    PlayKeys,
    PlayStrings,
    Rings,
    Strum,
    LayFingers,
    ReadFingers,
    Diagrams,
    Voicings,
    Settings,
    Help,
    Listen,
    Add,
    Remove,
    Clear,
    WriteList,
    Cut,
    Copy,
    Paste,
    Open,
    Save,
    Dashes,
    Import,
    Export,
    Print,
};

QIcon MakeIcon(Icon icon);
