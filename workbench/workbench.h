// The workbench: what is chosen, marked, fingered and muted, and everything that a command
// does to it. It is a value: a copy keeps a state, and two states can be compared.
#pragma once

#include "music/fingering.h"
#include "music/names.h"
#include "music/pianokeys.h"
#include "music/shape.h"
#include "music/voicingchoice.h"
#include "sound/playback.h"

#include <optional>

// One row of the fretboard, row 0 the lowest.
struct StringRow {
    std::optional<PitchClass> note; // What it sounds; empty while the open note is no note.
    std::optional<int> mark;        // The fret of its finger mark: 1 to 20, or 0 off the board.
    bool enabled = true;            // False for a muted string.
    int currentFret = 0;            // `StringFrets`: where the combination search stands...
    int automaticFret = 0;          // ...and where the automatic fingering put it.

    bool operator==(const StringRow&) const = default;
};

constexpr int barreFrets = 15;

// What the marked keys ask of the strings: while they are the chosen chord's, in whatever octave,
// that chord; otherwise their notes over the lowest one, without a name.
struct ChordToPlay {
    ChordOnStrings chord;
    QString name;
    std::optional<PitchClass> bass = std::nullopt; // Whose voicings come first.

    bool operator==(const ChordToPlay&) const = default;
};

class Workbench {
public:
    // state: the catalogues and the strings that the commands go by. They are no part of the
    // value: copies go by the same ones, which must outlive them.
    explicit Workbench(const AppState& state);

    bool operator==(const Workbench&) const = default;

    // Each command may throw a run-time error half way; what it did until then stays.

    // A row of a list is chosen, -1 for none, which runs nothing. A root carries its name, which is
    // compared with the twelve note names.
    void ChooseRoot(int row, const QString& name);
    void ChooseType(int row);
    void ChooseScale(int row, const QString& name);

    // A root and a type together, and the bass that is wanted under them until the next choice.
    void ChooseChord(int rootRow, int typeRow, std::optional<PitchClass> bass);

    // The same as the name of what the hand holds already: its fingers stay.
    void ChooseNameOfHand(int rootRow, int typeRow);

    void ChooseBarreStrings(int row);
    void ChooseBarreFret(int row);

    // The alternative notations of the chosen type; a run-time error with none chosen.
    QString AlternativeNames() const;

    void FindChord();      // Names the marked keys.
    void SwitchBarre();    // On or off, with what the two barre lists say.
    void PlaceFingers();   // The automatic fingering of the marked keys.
    void ReadFretboard();  // Marks what the strings sound, in the lowest octave.
    void ClearFretboard(); // Takes a barre off, and all fingers.

    // The next fret for a string; stringText is its number from 1, row 0. A run-time error
    // for a string that is not there.
    void FindNextFret(const QString& stringText);

    // A press on the fretboard: no fret puts the mark off the board; no row does nothing.
    void PressString(std::optional<int> row, std::optional<int> fret);
    void PressFretNumber(int fret);
    void ToggleMute(int row);

    // Moves a barre that stands so many frets up the neck, within the frets of its list.
    void MoveBarre(int frets);

    // The rings around the marked keys' notes on the neck. A scale shows them, a chord hides them.
    void SwitchRings() { m_ringsShown = !m_ringsShown; }

    // The neck as the shape has it: marks, mutes and, where the neck's bar can hold it, the barre
    // with its lists. With the next automatic fingering or clearing the mutes are again those
    // that the user had set.
    void LayShape(const Shape& shape);

    void ToggleKey(int key);
    void ClearKeyMarks();

    // Start-up: each key keeps its own colour, to be given back when a mark goes.
    void SaveKeyColours() { m_keys.SaveOwnColours(); }

    // Other strings were laid on the rows (`StringNotes`): they sound open, marks stay.
    void StringsChanged();

    // What playback asks for.
    RowSound SoundOfRow(int row) const;
    std::optional<int> ShownBarreFret() const;

    // What the left hand does: each string as it sounds, and the barre over the strings that it
    // spans. Which finger holds which string is not known.
    Shape NeckShape() const;

    // What the hand held when it last did something itself. Fingers that a chosen chord has placed
    // are none of its own; with nothing before them, they are all there is.
    Shape HandShape() const;

    ChordToPlay ToPlay() const;

    // What players call what sounds, best first, at most four names; the chosen chord's first
    // where it has every note.
    std::vector<PlayersName> NamesOfHand(const PlayersNames& names) const;

    // The note of a row stopped at a fret; empty where the open note is no note.
    std::optional<PitchClass> NoteAt(int row, int fret) const;

    // What the window shows.
    int RootRow() const { return m_rootRow; }
    int TypeRow() const { return m_typeRow; }
    int ScaleRow() const { return m_scaleRow; }
    std::optional<PitchClass> PreferredBass() const { return m_preferredBass; }
    bool ScaleRules() const { return m_scaleRules; } // Not a type: the scale was chosen last.
    bool RingsShown() const { return m_ringsShown; }
    int BarreStringsRow() const { return m_barreStringsRow; }
    int BarreFretRow() const { return m_barreFretRow; }
    const PianoKeys& Keys() const { return m_keys; }
    const StringRow& Row(int row) const;
    bool HasFingers() const;        // A mark or the barre stands.
    QString RowText(int row) const; // The note that the row sounds, as its label shows it.
    std::optional<Barre> ShownBarre() const { return m_barre; }
    const QString& ChordName() const { return m_chordName; }
    bool NamesChord() const { return m_namesChord; } // Whether that is a chord's name.
    const QString& ChordHint() const { return m_chordHint; }
    const QString& MarkedNames() const { return m_markedNames; }
    const MissingNotes& Missing() const { return m_missing; }

private:
    void SpellChord();
    void MarkChord();
    void NameChosenChord();
    void BeginChoice(bool ofScale);
    void EndChoice();
    void ClearFingering();
    void ShowMarkedKeyNames();
    void FindMissing();
    void SetNotes(const RowNotes& notes);
    RowNotes Notes() const;
    std::optional<Barre> BarreOfLists() const;
    std::optional<Barre> BarreFor(const Shape& shape) const;
    void TakeBackMutes();
    StringRow& At(int row);

    const AppState* m_state;
    PianoKeys m_keys;
    std::array<StringRow, stringCount> m_rows;
    std::optional<Barre> m_barre;                            // As it was when it was switched on.
    std::optional<std::array<bool, stringCount>> m_ownMutes; // The user's, under a laid shape.

    std::optional<Shape> m_placed; // By choosing a chord or a scale...
    std::optional<Shape> m_hand;   // ...and what the hand held before.

    int m_rootRow = -1;
    QString m_rootName;
    int m_typeRow = -1;
    int m_scaleRow = -1;
    std::optional<PitchClass> m_preferredBass; // Of the chosen chord; empty for its root.
    bool m_scaleRules = false;
    bool m_ringsShown = false;
    int m_barreStringsRow = -1;
    int m_barreFretRow = -1;

    QString m_chordName;
    bool m_namesChord = false; // It may be a scale's, or that none was found.
    QString m_chordHint;
    QString m_markedNames;
    MissingNotes m_missing;
};
