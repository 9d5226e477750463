// What is offered under txtFind while somebody types: types of chord, and whole chords.
#pragma once

#include "music/typedchord.h"

#include <QCompleter>
#include <QStringListModel>

#include <functional>

class QKeyEvent;
class QLineEdit;
class QListView;

class TypeCompleter : public QCompleter {
    Q_OBJECT

public:
    static constexpr int mostRows = 8;

    // What the window does at a key; empty for a key that has no command.
    using CommandOf = std::function<std::function<void()>(const QKeyEvent& press)>;

    // A key that has a command closes the list and runs it. Enter without a chosen row is what it
    // is in the field. chordTypes must outlive the field.
    TypeCompleter(QLineEdit* field, const TextTable& chordTypes, CommandOf commandOf);

Q_SIGNALS:
    void Chosen(const TypedChord& chord);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    // Whatever is typed, all rows that are offered are shown.
    QStringList splitPath(const QString&) const override { return {QString()}; }

private:
    void MakeList();
    void Offer(const QString& typed);
    void Choose(const QModelIndex& row);
    bool PressInList(const QKeyEvent& press);

    QLineEdit* m_field;
    QListView* m_list = nullptr;
    const TextTable& m_chordTypes;
    CommandOf m_commandOf;
    QStringListModel m_rows;
    std::vector<TypedChord> m_offered;
};
