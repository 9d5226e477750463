// What the parts of the two pictures are called where they are spoken or written out.
#pragma once

#include "core/phrase.h"
#include "music/fingering.h"

// "C sharp" for C#; a text that is no note name stays as it is.
QString SpokenNote(const QString& name, Tongue tongue);

// A key 0 to 35 with its octave, counted from 1.
QString KeyPartName(int key, bool marked, Tongue tongue);

struct StringLook {
    int string = 1; // 1 the thin one to 6.
    QString openNote;
    QString note;        // What it sounds.
    int fret = 0;        // Where it is stopped, 0 nowhere.
    bool barred = false; // By the barre.
    bool muted = false;
};

QString StringPartName(const StringLook& look, Tongue tongue);

// barre: empty while it is off.
QString BarrePartName(std::optional<Barre> barre, bool thinStringAtBottom, Tongue tongue);

// What a click on a string would give, and what a key is: its note, and what that is to the
// marked keys.
QString CrossingHint(int string, int fret, PitchClass note, const std::vector<int>& markedKeys,
                     Tongue tongue);
QString KeyHint(int key, const std::vector<int>& markedKeys, Tongue tongue);

// What a note is to the marked keys, the lowest of which is the root: the interval's name, or
// that it is none of them. Empty with no key marked.
QString ChordTone(PitchClass note, const std::vector<int>& markedKeys, Tongue tongue);
