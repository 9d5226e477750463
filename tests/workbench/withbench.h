// A workbench with the standard strings and a C chord chosen.
#pragma once

#include "core/settings.h"
#include "workbench/workbench.h"

#include <QTemporaryDir>
#include <QTest>

using Frets = QList<int>;

class WithBench {
protected:
    static constexpr int none = -1; // No mark.

    void SetUp() {
        m_state = AppState();
        LayStrings(m_state, standardStrings, true);
        m_bench = std::make_unique<Workbench>(m_state);
        m_bench->StringsChanged();
        m_bench->ChooseBarreStrings(5);
        m_bench->ChooseBarreFret(0);
        m_bench->ChooseRoot(0, QStringLiteral("C"));
        m_bench->ChooseType(0);
    }

    void AppendTypes(const QByteArray& bytes) {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("chords.dat"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write the test's file");
        file.write(bytes);
        file.close();
        m_state.ChordTypes.AppendDataFile(path);
    }

    Frets Marks() const {
        Frets frets;
        for (int row = 0; row < stringCount; ++row)
            frets += m_bench->Row(row).mark.value_or(none);
        return frets;
    }

    QString Notes() const {
        QStringList notes;
        for (int row = 0; row < stringCount; ++row)
            notes += m_bench->RowText(row);
        return notes.join(u' ');
    }

    AppState m_state;
    std::unique_ptr<Workbench> m_bench;
};
