// The settings dialog and the settings file: what it loads, what OK writes and hands over.
#include "settingsdialog.h"

class SettingsFileTest : public QObject, private SettingsDialog {
    Q_OBJECT

private Q_SLOTS:
    void init() { Reset(); }
    void cleanup() { m_dialog.reset(); }

    void UserSeven() {
        Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=7\r\n");
        Open();
        QVERIFY(m_dialog->Options[0]->isChecked());
    }

    void UserTuningIsLoaded() {
        Write(QStringLiteral("tonvik.ini"),
              "[Settings]\r\nUser=4\r\nUserN=1\r\n[Strings]\r\n1S=D\r\n"
              "1K=22\r\n2S=A\r\n2K=27\r\n3S=F#\r\n3K=30\r\n");
        Open();
        QVERIFY(m_dialog->Options[3]->isChecked());
        QCOMPARE(m_dialog->lstTunings->Row(), 1);
        QCOMPARE(Notes(), QStringLiteral("D A F# D A E")); // The file's strings come last.
        QCOMPARE(m_dialog->VScroll1[2]->value(), 19);
    }

    void SavedSoundNumbersSurvive() {
        const QByteArray saved =
            "[Settings]\r\nUser=3\r\nUserN=0\r\nLanguage=Default\r\n[Strings]\r\n"
            "1S=E\r\n2S=B\r\n3S=G\r\n4S=D\r\n5S=A\r\n6S=D\r\n"
            "1K=8\r\n2K=25\r\n3K=29\r\n4K=34\r\n5K=39\r\n6K=58\r\n";
        Write(QStringLiteral("tonvik.ini"), saved);
        Open();
        QCOMPARE(Numbers(), QStringLiteral("8 25 29 34 39 58"));
        Ok();
        QCOMPARE(Saved(), saved);
    }

    void TuningRowPastTheEnd() {
        Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=3\r\nUserN=36\r\n");
        BoxSeen box;
        AnswerBox(box);
        Open();
        QVERIFY(box.seen);
        QCOMPARE(box.name, QStringLiteral("RunTimeError"));
        QVERIFY(m_dialog->isVisible());
        QCOMPARE(m_dialog->lstTunings->Row(), -1);
        QCOMPARE(m_dialog->lstLang->RowCount(), 1);
        m_dialog->lstTunings->SelectRow(0); // It can be used all the same.
        QCOMPARE(Notes(), QStringLiteral("E B G D A D"));
    }

    void TuningRowMinusOne() {
        Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=3\r\nUserN=-1\r\n");
        Open();
        QCOMPARE(m_dialog->lstTunings->Row(), -1);
        QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
    }

    void NoteThatIsNone() {
        Write(QStringLiteral("tonvik.ini"),
              "[Settings]\r\nUser=3\r\nUserN=0\r\n[Strings]\r\n2S=H\r\n");
        BoxSeen box;
        AnswerBox(box);
        Open();
        QVERIFY(box.seen);
        QVERIFY(box.text.contains(QStringLiteral("«H»")));
        QCOMPARE(m_dialog->Text1[1]->text(), QStringLiteral("H"));
        QVERIFY(m_dialog->isVisible());
    }

    void OkHandsOver_data() {
        QTest::addColumn<int>("option");
        QTest::addColumn<bool>("thinAtBottom");
        QTest::newRow("1") << 1 << false;
        QTest::newRow("2") << 2 << true;
        QTest::newRow("3") << 3 << false;
        QTest::newRow("4") << 4 << true;
    }
    void OkHandsOver() {
        QFETCH(const int, option);
        QFETCH(const bool, thinAtBottom);
        Open();
        m_dialog->Options[static_cast<std::size_t>(option) - 1]->click();
        if (option > 2)
            m_dialog->lstTunings->SelectRow(0);
        QTest::keyClick(m_dialog.get(), Qt::Key_Return); // OK is the default button.
        QVERIFY(!m_dialog->isVisible());
        QVERIFY(m_handed);
        QCOMPARE(ThinAtBottom(m_handed->layout), thinAtBottom);
        QCOMPARE(m_handed->strings.notes[5],
                 option > 2 ? QStringLiteral("D") : QStringLiteral("E"));
        QCOMPARE(m_handed->strings.soundNumbers[5],
                 option > 2 ? QStringLiteral("46") : QStringLiteral("44"));
        UseSettings(m_state, *m_handed);
        QCOMPARE(m_state.SoundNumbers[thinAtBottom ? 0 : 5], QStringLiteral("20"));
    }

    void OkWithoutRemembering() {
        Open();
        m_dialog->Check1->click();
        Ok();
        QVERIFY(m_handed);
        QCOMPARE(Saved(), QByteArray("(missing)"));
    }

    void OkWritesTheFile() {
        Open();
        m_dialog->Options[3]->click();
        m_dialog->lstTunings->SelectRow(21);
        Ok();
        QCOMPARE(Saved(),
                 QByteArray("[Settings]\r\nUser=4\r\nUserN=21\r\nLanguage=Default\r\n"
                            "[Strings]\r\n1S=D#\r\n2S=A#\r\n3S=F#\r\n4S=C#\r\n5S=G#\r\n"
                            "6S=D#\r\n1K=21\r\n2K=26\r\n3K=30\r\n4K=35\r\n5K=40\r\n6K=45\r\n"));
    }

    void OkKeepsOtherLines() {
        Open();
        Write(QStringLiteral("tonvik.ini"), "; mine\r\n[Other]\r\nKey=1\r\n"); // While it is open.
        Ok();
        QVERIFY(Saved().startsWith("; mine\r\n[Other]\r\nKey=1\r\n[Settings]\r\nUser=2\r\n"));
        QVERIFY(!Saved().contains("UserN"));
    }

    void CancelDoesNothing() {
        Open();
        m_dialog->Options[2]->click();
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        QVERIFY(!m_dialog->isVisible());
        QVERIFY(!m_handed);
        QCOMPARE(Saved(), QByteArray("(missing)"));
    }

    void UnwritableFolder() {
        QVERIFY(QDir(m_folder->Path()).mkdir(QStringLiteral("tonvik.ini")));
        Open();
        m_dialog->Options[0]->click();
        Ok();
        QVERIFY(m_dialog->Unsaved());
        QVERIFY(m_handed);
        QVERIFY(!m_dialog->isVisible());
        QVERIFY(QFileInfo(m_folder->Path(QStringLiteral("tonvik.ini"))).isDir());
    }

    void LanguagesAreListed() {
        Write(QStringLiteral("b.lng"), "[Init]\r\nLang=Bee\r\n");
        Write(QStringLiteral("a.lng"), "");
        Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLanguage=b.lng\r\n");
        Open();
        QCOMPARE(m_dialog->lstLang->RowText(0), QStringLiteral("Russian - default"));
        QCOMPARE(m_dialog->lstLang->RowText(1), QStringLiteral("LANG FILE ERROR! - a.lng"));
        QCOMPARE(m_dialog->lstLang->RowText(2), QStringLiteral("Bee - b.lng"));
        QCOMPARE(m_dialog->lstLang->Row(), 2);
    }

    void LanguageIsWritten() {
        Write(QStringLiteral("b.lng"), "[Init]\r\nLang=Bee\r\n");
        Write(QStringLiteral("a.lng"), "");
        Open();
        m_dialog->lstLang->SelectRow(2);
        Ok();
        QVERIFY(Saved().contains("Language=b.lng\r\n"));
    }

    void ALanguageFileThatIsGoneCostsOnlyTheLanguage() {
        Write(QStringLiteral("a.lng"), "");
        Open();
        m_dialog->Options[3]->click();
        m_dialog->lstTunings->SelectRow(0);
        m_dialog->lstLang->SelectRow(1);
        QVERIFY(QFile::remove(m_folder->Path(QStringLiteral("a.lng"))));
        BoxSeen box;
        AnswerBox(box);
        Ok();
        QCOMPARE(box.name, QStringLiteral("RunTimeError"));
        QVERIFY(m_dialog->isVisible());
        QVERIFY(!m_handed);
        QCOMPARE(Saved(), QByteArray("[Settings]\r\nUser=4\r\nUserN=0\r\n[Strings]\r\n1S=E\r\n"
                                     "2S=B\r\n3S=G\r\n4S=D\r\n5S=A\r\n6S=D\r\n1K=20\r\n2K=25\r\n"
                                     "3K=29\r\n4K=34\r\n5K=39\r\n6K=46\r\n"));
        m_dialog->lstLang->SelectRow(0);
        Ok();
        QVERIFY(Saved().contains("Language=Default"));
    }

    void ARowThatIsNotInTheListIsNamedAsItWasTyped_data() {
        QTest::addColumn<QByteArray>("row");
        QTest::addColumn<QString>("russian");
        QTest::addColumn<QString>("english");
        const auto row = [](const char* text, const char* shown, const char* quoted) {
            QTest::newRow(text) << QByteArray(text)
                                << QStringLiteral("В списке строев нет строки %1 (UserN в "
                                                  "tonvik.ini): их номера от 0 до 35.")
                                       .arg(QString::fromUtf8(shown))
                                << QStringLiteral("The list of tunings has no row %1 (UserN in "
                                                  "tonvik.ini): they are numbered 0 to 35.")
                                       .arg(QString::fromUtf8(quoted));
        };
        row("99", "99", "99");
        row("-5", "-5", "-5");
        row("1000000", "1000000", "1000000");
        row("1e99 rows", "1e99", "1e99");
    }
    void ARowThatIsNotInTheListIsNamedAsItWasTyped() {
        QFETCH(const QByteArray, row);
        QFETCH(const QString, russian);
        QFETCH(const QString, english);
        Write(QStringLiteral("tonvik.ini"),
              "[Settings]\r\nUser=4\r\nUserN=" + row + "\r\n[Strings]\r\n1S=D\r\n1K=22\r\n");
        auto* application = static_cast<Application*>(qApp);
        for (const Tongue tongue : {Tongue::Russian, Tongue::English}) {
            application->SetTongue(tongue);
            BoxSeen box;
            AnswerBox(box);
            Open();
            QCOMPARE(box.text, tongue == Tongue::Russian ? russian : english);
        }
        application->SetTongue(Tongue::Russian);
        // The saved strings are there, and stay at OK.
        QCOMPARE(Notes(), QStringLiteral("D B G D A E"));
        QCOMPARE(Number(0), QStringLiteral("22"));
        Ok();
        QVERIFY(Saved().contains("1S=D\r\n"));
    }

    void ANoteThatIsNoneCostsNoOtherString() {
        Write(QStringLiteral("tonvik.ini"),
              "[Settings]\r\nUser=3\r\nUserN=0\r\n[Strings]\r\n1S=H\r\n2S=X\r\n6S=D\r\n6K=46\r\n");
        BoxSeen box;
        AnswerBox(box);
        Open();
        QCOMPARE(box.text, QStringLiteral("Нота «H» струны 1 неизвестна: это не одно из двенадцати "
                                          "названий от C до B."));
        QCOMPARE(Notes(), QStringLiteral("H X G D A D"));
        QCOMPARE(m_dialog->VScroll1[5]->value(), 15);
    }

    void WithoutARowTheFourthTuningIsSelected() {
        Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=3\r\n");
        Open();
        QCOMPARE(m_dialog->lstTunings->Row(), 3);
    }

    void TheRememberedLanguageIsShownAgain() {
        Write(QStringLiteral("a.lng"), "");
        Write(QStringLiteral("b.lng"), "");
        Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLanguage=a.lng\r\n");
        m_state.LanguageFile = m_state.AppPath + QStringLiteral("a.lng");
        Open();
        QCOMPARE(m_dialog->lstLang->Row(), 1);
        m_dialog->lstLang->SelectRow(2);
        Ok();
        Open();
        QCOMPARE(m_dialog->lstLang->Row(), 2);
        QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Settings")); // By the language in use.
    }

    void ALanguageThatTheFileCannotHoldIsNotRemembered() {
        Write(QStringLiteral("español.lng"), "");
        Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLanguage=x.lng\r\n");
        Open();
        m_dialog->Options[0]->click();
        m_dialog->lstLang->SelectRow(1);
        Ok();
        QVERIFY(Saved().contains("Language=x.lng\r\n"));
        QVERIFY(Saved().contains("User=1\r\n"));
        QVERIFY(m_dialog->Unsaved());
        QVERIFY(m_dialog->Unsaved()->russian.contains(QStringLiteral("Язык не запомнен")));
        QVERIFY(m_dialog->Unsaved()->english.contains(QStringLiteral("español.lng")));
        QVERIFY(m_handed);
    }

    void ALanguageFileThatCannotBeReadIsListed() {
        Write(QStringLiteral("a.lng"), "");
        QFile huge(m_folder->Path(QStringLiteral("a.lng")));
        QVERIFY(huge.open(QIODevice::ReadWrite) && huge.resize(qint64{1} << 40));
        Open();
        QCOMPARE(m_dialog->lstLang->RowText(1), QStringLiteral("LANG FILE ERROR! - a.lng"));
        QCOMPARE(m_dialog->lstLang->Row(), 0);
    }

    void TheLeftHandedNeckIsHandedOverRememberedOrNot_data() {
        QTest::addColumn<bool>("remember");
        QTest::newRow("remembered") << true;
        QTest::newRow("for this time only") << false;
    }
    void TheLeftHandedNeckIsHandedOverRememberedOrNot() {
        QFETCH(const bool, remember);
        Open();
        QCheckBox* leftHanded = Find<QCheckBox>(QStringLiteral("Check2"));
        QVERIFY(!leftHanded->isChecked());
        QCOMPARE(leftHanded->text(), QStringLiteral("Гриф для левши"));
        leftHanded->click();
        Find<QCheckBox>(QStringLiteral("Check1"))->setChecked(remember);
        Ok();
        QVERIFY(m_handed->leftHanded);
        UseSettings(m_state, *m_handed);
        QVERIFY(m_state.LeftHanded);
        QCOMPARE(Saved().contains("LeftHanded=1\r\n"), remember);
        Open();
        QCOMPARE(Find<QCheckBox>(QStringLiteral("Check2"))->isChecked(), remember);
    }

    void TheSchemeIsShownAndHandedOver() {
        Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nScheme=1\r\n");
        Open();
        auto* scheme = Find<QComboBox>(QStringLiteral("lstScheme"));
        QCOMPARE(scheme->count(), 3);
        QCOMPARE(scheme->currentIndex(), 1);
        scheme->setCurrentIndex(2);
        Ok();
        QCOMPARE(m_handed->scheme, SchemeChoice::Dark);
        QVERIFY(Saved().contains("Scheme=2\r\n"));
    }
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    SettingsFileTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "settingsfile_test.moc"
