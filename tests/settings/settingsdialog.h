// The settings dialog in a program folder of the test's own, without a sound.
#pragma once

#include "controls/application.h"
#include "controls/goldbutton.h"
#include "core/language.h"
#include "core/runtimeerror.h"
#include "settings/frmsettings.h"
#include "support/dialogs.h"
#include "support/recordingsound.h"
#include "support/testfolder.h"

#include <QTest>

struct SettingsDialog {
    void Reset() {
        m_dialog.reset();
        m_folder = std::make_unique<TestFolder>();
        m_state = AppState();
        m_state.AppPath = m_folder->Path();
        m_clock = HandClock();
        m_midi = std::make_unique<RecordingPlayer>(m_clock);
        m_handed.reset();
    }

    void Write(const QString& name, const QByteArray& bytes) const {
        QVERIFY(m_folder->Write(name, bytes));
    }

    // The bytes of the settings file.
    QByteArray Saved() const {
        const QString name = QStringLiteral("tonvik.ini");
        return m_folder->Names().contains(name) ? m_folder->Bytes(name) : QByteArray("(missing)");
    }

    void Open() {
        m_dialog = std::make_unique<frmSettings>(
            m_state, *m_midi, m_clock, [this](const Settings& settings) { m_handed = settings; });
        m_dialog->Form_Load();
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    void Ok() { QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton); }

    template <typename Widget = QWidget>
    Widget* Find(const QString& name) {
        auto* found = m_dialog->findChild<Widget*>(name);
        if (found == nullptr)
            qFatal("no control is called %s", qPrintable(name));
        return found;
    }

    QString Notes() const {
        QStringList notes;
        for (const auto* text : m_dialog->Text1)
            notes += text->text();
        return notes.join(u' ');
    }

    QString Number(std::size_t string) const {
        return m_dialog->Text1[string]->property("Tag").toString();
    }

    QString Numbers() const {
        QStringList numbers;
        for (std::size_t string = 0; string < stringCount; ++string)
            numbers += Number(string);
        return numbers.join(u' ');
    }

    std::unique_ptr<TestFolder> m_folder;
    AppState m_state;
    HandClock m_clock;
    std::unique_ptr<RecordingPlayer> m_midi;
    std::unique_ptr<frmSettings> m_dialog;
    std::optional<Settings> m_handed;
};
