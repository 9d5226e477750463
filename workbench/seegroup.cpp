#include "workbench/seegroup.h"

#include "controls/colours.h"
#include "controls/labellook.h"
#include "controls/newcontrols.h"
#include "controls/papercard.h"
#include "controls/picturelabel.h"
#include "core/tuningwords.h"

#include <QGridLayout>

SeeGroup::SeeGroup(QWidget* window)
    : seeColumn(Spaced(new QVBoxLayout, 0)),
      Label1(new PictureLabel(QStringLiteral("Label1"), Icon::PlayStrings, window)),
      lblChord(NewLabel(u"lblChord", window)),
      cmdFindChord(NewPictureButton(u"cmdFindChord", Icon::NameChord, window)),
      lblSounds(new ChoiceLabel(QStringLiteral("lblSounds"), window)),
      cmdRings(NewPictureButton(u"cmdRings", Icon::Rings, window)),
      panel(new InstrumentPanel(window)),
      lstVoicings(new VoicingList(QStringLiteral("lstVoicings"), VoicingList::Flow::Strip, window)),
      lblVoicings(NewLabel(u"lblVoicings", window)),
      cmdVoicings(NewPictureButton(u"cmdVoicings", Icon::Voicings, window)),
      cmdAddDiag(NewPictureButton(u"cmdAddDiag", Icon::Add, window)),
      Label2(NewLabel(u"Label2", window)),
      lblKeys(NewLabel(u"lblKeys", window)),
      Label7(NewLabel(u"Label7", window)),
      lblNoS(NewLabel(u"lblNoS", window)) {
    seeColumn->addLayout(ChordLine());
    seeColumn->addWidget(lblSounds);
    seeColumn->addWidget(panel, 1);
    seeColumn->addLayout(VoicingLine());
    seeColumn->addWidget(NoteLines(window));
    FitToLetters(1);
}

QLayout* SeeGroup::ChordLine() {
    auto* line = Spaced(new QHBoxLayout, 0);
    line->addWidget(Label1);
    line->addWidget(lblChord, 1);
    line->addWidget(cmdFindChord);
    line->addWidget(cmdRings);
    cmdRings->setCheckable(true);
    QFont bold = lblSounds->font();
    bold.setBold(true);
    lblSounds->setFont(bold);
    return line;
}

void SeeGroup::FitToLetters(double name) const {
    constexpr double larger = 1.9; // Than the other letters.
    QFont large = lblVoicings->font();
    const int side = lblVoicings->fontMetrics().height() * 2;
    large.setPointSizeF(large.pointSizeF() * larger * name);
    large.setBold(true);
    lblChord->setFont(large);
    lblChord->setMinimumSize(1, lblChord->fontMetrics().height()); // No name widens the window.
    Label1->setFixedSize(side, side);
}

QLayout* SeeGroup::VoicingLine() {
    lstVoicings->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* grid = Spaced(new QGridLayout, 0);
    grid->setVerticalSpacing(layoutGap / 4);
    auto* buttons = Spaced(new QVBoxLayout, 0);
    buttons->addWidget(cmdVoicings);
    buttons->addWidget(cmdAddDiag);
    buttons->addStretch(1);
    grid->addWidget(lstVoicings, 0, 0);
    grid->addLayout(buttons, 0, 1);
    grid->addWidget(lblVoicings, 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    return grid;
}

QWidget* SeeGroup::NoteLines(QWidget* window) {
    auto* card = new PaperCard(window);
    auto* grid = Spaced(new QGridLayout(card), layoutGap / 2);
    grid->setHorizontalSpacing(layoutGap);
    grid->addWidget(Label2, 0, 0);
    grid->addWidget(lblKeys, 0, 1);
    grid->addWidget(Label7, 1, 0);
    grid->addWidget(lblNoS, 1, 1);
    grid->setColumnStretch(1, 1);
    for (TextLabel* label : {lblKeys, lblNoS}) {
        label->setMinimumWidth(1); // A long list must not widen the window.
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
    }
    return card;
}

// It stands behind what the label does there. A catalogue may have a million tunings to look
// through: that is done for other strings alone.
void SeeGroup::ShowTuning(const AppState& state) {
    const bool said = panel->Label6.front()->toolTip().contains(u'\n');
    if (const QString notes = TuningNotes(state); notes != m_tuning || !said) {
        m_tuning = notes;
        const QString tuning = TuningInWords(state);
        for (HotLabel* handle : panel->Label6)
            handle->setToolTip(handle->toolTip().section(u'\n', 0, 0) + u'\n' + tuning);
    }
}

void SeeGroup::ShowMissing(const MissingNotes& missing, Tongue tongue) const {
    const Phrase rootMissing{QStringLiteral("Ни одна струна не даёт основного тона аккорда."),
                             QStringLiteral("No string sounds the root of the chord.")};
    lblNoS->setText(missing.text);
    SetTextColour(lblNoS, missing.rootMissing ? Colours::mark : Colours::normalText);
    lblNoS->setToolTip(missing.rootMissing ? rootMissing.In(tongue) : QString());
}
