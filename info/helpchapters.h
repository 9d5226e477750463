// The chapters of the manual, where they begin in its text, and which tells of what.
#pragma once

#include "core/phrase.h"

#include <QStringView>

#include <optional>

class QWidget;

// Numbered as in the manual.
enum class Chapter {
    FirstSteps = 1,
    MainWindow,
    Keys,
    NeckAndPiano,
    Chords,
    Scales,
    Voicings,
    FretByFret,
    Barre,
    Sound,
    Settings,
    Sheet,
    OwnData,
    Files,
    NoSound,
};

// The chapter about this control or, where none is about it alone, about its window; nothing
// for a window that the manual has no chapter about, and for no control.
std::optional<Chapter> ChapterAbout(const QWidget* control);

// The line, counted from 0, at which the text begins to tell of the chapter in this language:
// the line of its heading. Without a chapter, or where the text does not have it, the line at
// which the manual begins in this language, and 0 where it does not.
int LineOf(QStringView text, std::optional<Chapter> chapter, Tongue tongue);
