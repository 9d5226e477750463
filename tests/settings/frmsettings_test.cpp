// The settings dialog through its real window: what its controls do.
#include "settings/tuningdelegate.h"
#include "settingsdialog.h"

#include <QSet>

class FrmSettingsTest : public QObject, private SettingsDialog {
    Q_OBJECT

private Q_SLOTS:
    void init() { Reset(); }
    void cleanup() { m_dialog.reset(); }

    void DefaultsOnFirstUse() {
        Open();
        QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Настройки"));
        QVERIFY(Find<QRadioButton>(QStringLiteral("Option2"))->isChecked());
        QVERIFY(Find<QCheckBox>(QStringLiteral("Check1"))->isChecked());
        QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
        QCOMPARE(Numbers(), QStringLiteral("20 25 29 34 39 44"));
        QCOMPARE(m_dialog->lstTunings->RowCount(), 36);
        QCOMPARE(m_dialog->lstTunings->RowText(0), QStringLiteral("Low D/Drop D"));
        QCOMPARE(m_dialog->lstTunings->Row(), -1);
        QCOMPARE(Find<QScrollBar>(QStringLiteral("VScroll1(1)"))->value(), 24);
        QCOMPARE(Find<QScrollBar>(QStringLiteral("VScroll1(0)"))->value(), 17);
        QCOMPARE(m_dialog->lstLang->RowCount(), 1);
        QCOMPARE(m_dialog->lstLang->Row(), 0);
        QCOMPARE(Find<QLabel>(QStringLiteral("Label2"))->text(), QStringLiteral("Шестая струна:"));
        QCOMPARE(Find<QLabel>(QStringLiteral("Label3"))->text(), QStringLiteral("Вторая струна:"));
        QCOMPARE(Saved(), QByteArray("(missing)"));
    }

    void StandardDisablesTheStrings() {
        Open();
        for (const char* name : {"Frame3", "Text1(0)", "Text1(5)", "Label1", "Label6", "lstTunings",
                                 "VScroll1(0)", "VScroll2(0)"})
            QVERIFY2(!Find(QString::fromLatin1(name))->isEnabled(), name);
        QVERIFY(
            Find(QStringLiteral("Image1(0)"))->isEnabled()); // A string can be heard all the same.
    }

    void UserTuningEnablesThem() {
        Open();
        for (const auto option : {2, 3}) {
            m_dialog->Options[0]->click();
            m_dialog->Options[static_cast<std::size_t>(option)]->click();
            for (const char* name : {"Frame3", "Text1(0)", "Label2", "lstTunings", "VScroll1(0)"})
                QVERIFY2(Find(QString::fromLatin1(name))->isEnabled(), name);
            QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
        }
    }

    void ChoosingATuning() {
        Open();
        m_dialog->Options[2]->click();
        const int wheel = m_dialog->VScroll1[0]->value();
        const QModelIndex row = m_dialog->lstTunings->model()->index(3, 0);
        QTest::mouseClick(m_dialog->lstTunings->viewport(), Qt::LeftButton, {},
                          m_dialog->lstTunings->visualRect(row).center());
        QCOMPARE(Notes(), QStringLiteral("D B G D G D"));
        QCOMPARE(Numbers(), QStringLiteral("22 25 29 34 41 46"));
        QCOMPARE(m_dialog->VScroll1[0]->value(), wheel); // The wheels are not moved.
    }

    void TuningWithTooFewNames() {
        Write(QStringLiteral("tunings.dat"), "short\r\nD,A\r\nodd\r\nH,x,,D,A,E");
        m_state.Tunings.AppendDataFile(m_folder->Path(QStringLiteral("tunings.dat")));
        Open();
        m_dialog->Options[2]->click();
        BoxSeen box;
        AnswerBox(box);
        m_dialog->lstTunings->SelectRow(36);
        QCOMPARE(box.text, QStringLiteral("В строе «short» только 2 ноты из шести."));
        QCOMPARE(Notes(), QStringLiteral("D A G D A E")); // What was done stays.
        m_dialog->lstTunings_Click(37);
        QCOMPARE(Notes(), QStringLiteral("H x  D A E"));
        QCOMPARE(Number(3), QStringLiteral("34"));
    }

    void NoteWheel() {
        Open();
        m_dialog->Options[3]->click();
        ClickArrow(m_dialog->VScroll1[0], true); // E to F.
        QCOMPARE(m_dialog->Text1[0]->text(), QStringLiteral("F"));
        QCOMPARE(Number(0), QStringLiteral("19"));
        ClickArrow(m_dialog->VScroll1[0], false);
        ClickArrow(m_dialog->VScroll1[0], false);
        QCOMPARE(m_dialog->Text1[0]->text(), QStringLiteral("D#"));
        ClickArrow(m_dialog->VScroll1[1], true); // B is the top of the wheel.
        QCOMPARE(m_dialog->Text1[1]->text(), QStringLiteral("B"));
        m_dialog->VScroll1[0]->setValue(m_dialog->VScroll1[0]->minimum());
        QCOMPARE(m_dialog->Text1[0]->text(), QStringLiteral("B"));
    }

    void OctaveShift() {
        Open();
        m_dialog->Options[3]->click();
        QScrollBar* octave = m_dialog->VScroll2[5];
        QCOMPARE(octave->property("Tag").toString(), QString::number(octave->value()));
        ClickArrow(octave, true);
        QCOMPARE(Number(5), QStringLiteral("32"));
        ClickArrow(octave, false);
        ClickArrow(octave, false);
        QCOMPARE(Number(5), QStringLiteral("56"));
        QCOMPARE(octave->property("Tag").toString(), QString::number(octave->value()));
        QCOMPARE(m_dialog->Text1[5]->text(), QStringLiteral("E"));
    }

    void CheckedOptionClickedAgain() {
        Write(QStringLiteral("tonvik.ini"),
              "[Settings]\r\nUser=2\r\n[Strings]\r\n1S=D\r\n1K=22\r\n");
        Open();
        QCOMPARE(m_dialog->Text1[0]->text(), QStringLiteral("D"));
        QTest::mouseClick(m_dialog->Options[1], Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
        QCOMPARE(Numbers(), QStringLiteral("20 25 29 34 39 44"));
    }

    void Listening() {
        Open();
        QTest::mouseClick(m_dialog->Image1[4], Qt::LeftButton);
        QCOMPARE(m_midi->played, QStringList(QStringLiteral("strings/39.mid")));
        QCOMPARE(m_clock.now, 100.5);
        QCOMPARE(m_midi->closed, 1);
        m_dialog->Image1[5]->setFocus();
        QTest::keyClick(m_dialog->Image1[5], Qt::Key_Space);
        QCOMPARE(m_midi->played.last(), QStringLiteral("strings/44.mid"));
    }

    void TypedNotes() {
        Open();
        m_dialog->Options[3]->click();
        m_dialog->Text1[0]->clear();
        QTest::keyClicks(m_dialog->Text1[0], QStringLiteral("F"));
        QCOMPARE(Number(0), QStringLiteral("20"));
        Ok();
        QCOMPARE(m_handed->strings.notes[0], QStringLiteral("F"));
    }

    void EnglishCaptions() {
        QByteArray file("[Settings]\r\n");
        for (int key = 1; key <= 15; ++key)
            file += QByteArray::number(key) + "=t" + QByteArray::number(key) + "\r\n";
        Write(QStringLiteral("t.lng"), file);
        m_state.LanguageFile = m_state.AppPath + QStringLiteral("t.lng");
        Open();
        QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Settings"));
        const auto caption = [this](const char* name) {
            return Find<QLabel>(QString::fromLatin1(name))->text();
        };
        QCOMPARE(m_dialog->Frame1->title(), QStringLiteral("t1"));
        QCOMPARE(m_dialog->Frame3->title(), QStringLiteral("t2"));
        QCOMPARE(m_dialog->Frame2->title(), QStringLiteral("Язык интерфейса/Interface language:"));
        for (std::size_t i = 0; i < 4; ++i)
            QCOMPARE(m_dialog->Options[i]->text(), QStringLiteral("t%1").arg(i + 3));
        QCOMPARE(m_dialog->Check1->text(), QStringLiteral("t7"));
        QCOMPARE(caption("Label1"), QStringLiteral("t8"));
        QCOMPARE(caption("Label3"), QStringLiteral("t9"));
        QCOMPARE(caption("Label4"), QStringLiteral("t10"));
        QCOMPARE(caption("Label5"), QStringLiteral("t11"));
        QCOMPARE(caption("Label6"), QStringLiteral("t12"));
        QCOMPARE(caption("Label2"), QStringLiteral("t13"));
        QCOMPARE(m_dialog->cmdCancel->text(), QStringLiteral("t15"));
        QCOMPARE(m_dialog->cmdOK->text(), QStringLiteral("OK"));
    }

    void MissingLanguageKeys() {
        Write(QStringLiteral("t.lng"), "");
        m_state.LanguageFile = m_state.AppPath + QStringLiteral("t.lng");
        Open();
        QCOMPARE(m_dialog->Frame1->title(), QStringLiteral("LANG FILE ERROR!"));
    }

    void NothingIsClipped() {
        Open();
        for (const auto* control : m_dialog->findChildren<QWidget*>()) {
            const bool captioned = qobject_cast<const QAbstractButton*>(control) != nullptr ||
                                   qobject_cast<const QLabel*>(control) != nullptr;
            if (captioned && control->isVisible())
                QVERIFY2(control->width() >= control->sizeHint().width(),
                         qPrintable(control->objectName()));
        }
        QVERIFY(m_dialog->width() <= 1000 && m_dialog->height() <= 560);
    }

    void VScroll1ChangesNoteAndSoundNumberOfItsString_data() {
        QTest::addColumn<int>("string");
        QTest::addColumn<QString>("note"); // One step up from the standard note.
        QTest::addColumn<QString>("number");
        QTest::newRow("string 2: from the top of the wheel to its bottom")
            << 1 << QStringLiteral("B") << QStringLiteral("25");
        QTest::newRow("string 3") << 2 << QStringLiteral("G#") << QStringLiteral("28");
        QTest::newRow("string 4") << 3 << QStringLiteral("D#") << QStringLiteral("33");
        QTest::newRow("string 5") << 4 << QStringLiteral("A#") << QStringLiteral("38");
        QTest::newRow("string 6") << 5 << QStringLiteral("F") << QStringLiteral("43");
    }
    void VScroll1ChangesNoteAndSoundNumberOfItsString() {
        QFETCH(const int, string);
        QFETCH(const QString, note);
        QFETCH(const QString, number);
        Open();
        m_dialog->Options[3]->click();
        const auto i = static_cast<std::size_t>(string);
        ClickArrow(m_dialog->VScroll1[i], true);
        QCOMPARE(m_dialog->Text1[i]->text(), note);
        QCOMPARE(Number(i), number);
    }

    void AWheelTurnedDownGivesThatStringsNumber() {
        Open();
        m_dialog->Options[3]->click();
        const QStringList numbers{QStringLiteral("21"), QStringLiteral("26"), QStringLiteral("30"),
                                  QStringLiteral("35"), QStringLiteral("40"), QStringLiteral("45")};
        for (std::size_t i = 0; i < stringCount; ++i)
            ClickArrow(m_dialog->VScroll1[i], false);
        QCOMPARE(Numbers(), numbers.join(u' '));
    }

    void AnEmptyTuningHasNoNotes() {
        Write(QStringLiteral("tunings.dat"), "empty\r\n\r\n");
        m_state.Tunings.AppendDataFile(m_folder->Path(QStringLiteral("tunings.dat")));
        Open();
        m_dialog->Options[2]->click();
        BoxSeen box;
        AnswerBox(box);
        m_dialog->lstTunings->SelectRow(36);
        QCOMPARE(box.text, QStringLiteral("В строе «empty» нет ни одной ноты из шести."));
        QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
    }

    void ATuningShowsItsNotesBesideItsName() {
        Open();
        const TuningDelegate delegate(m_state.Tunings);
        QCOMPARE(delegate.NotesOf(0), QStringLiteral("D A D G B E")); // The thick string first.
        QCOMPARE(m_dialog->lstTunings->RowText(0), QStringLiteral("Low D/Drop D"));
        ListBox* list = m_dialog->lstTunings;
        m_dialog->Options[2]->click();
        const QRect row = list->visualRect(list->model()->index(0, 0));
        const QImage seen = list->viewport()->grab(row).toImage();
        // The last part of the row, behind the name, is not empty.
        QSet<QRgb> colours;
        for (int x = row.width() * 3 / 4; x < row.width(); ++x)
            for (int y = 0; y < row.height(); ++y)
                colours += seen.pixel(x, y);
        QVERIFY(colours.size() > 1);
    }

    void TheListenButtonsLieOnTheFrameButAreNotItsChildren() {
        Open();
        for (const GoldButton* listen : m_dialog->Image1) {
            QCOMPARE(listen->parentWidget(), m_dialog.get());
            QVERIFY(m_dialog->Frame3->geometry().contains(listen->geometry()));
        }
        for (std::size_t i = 0; i < stringCount; ++i) { // Each beside its string.
            const QWidget* text = m_dialog->Text1[i];
            const int middle = text->mapTo(m_dialog.get(), text->rect().center()).y();
            QVERIFY(std::abs(m_dialog->Image1[i]->geometry().center().y() - middle) <= 1);
        }
    }

private:
    void ClickArrow(QScrollBar* bar, bool up) {
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          QPoint(bar->width() / 2, up ? 4 : bar->height() - 4));
    }
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    FrmSettingsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "frmsettings_test.moc"
