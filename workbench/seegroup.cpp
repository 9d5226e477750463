#include "workbench/seegroup.h"

#include "controls/colours.h"
#include "controls/labellook.h"
#include "controls/newcontrols.h"
#include "controls/papercard.h"

#include <QGridLayout>

SeeGroup::SeeGroup(QWidget* window)
    : seeColumn(Spaced(new QVBoxLayout, 0)),
      Label1(new QLabel(window)),
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
    seeColumn->addLayout(ChordLine(window));
    seeColumn->addWidget(lblSounds);
    seeColumn->addWidget(panel, 1);
    seeColumn->addLayout(VoicingLine());
    seeColumn->addWidget(NoteLines(window));
}

QLayout* SeeGroup::ChordLine(const QWidget* window) {
    const int side = lblChord->fontMetrics().height() * 2;
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setMouseTracking(true);
    Label1->setPixmap(
        MakeIcon(Icon::PlayStrings).pixmap(QSize(side, side), window->devicePixelRatio()));
    QFont large = lblChord->font();
    large.setPointSizeF(large.pointSizeF() * 1.9);
    large.setBold(true);
    lblChord->setFont(large);
    lblChord->setMinimumSize(1, lblChord->fontMetrics().height()); // No name widens the window.
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

void SeeGroup::ShowMissing(const MissingNotes& missing, Tongue tongue) const {
    const Phrase rootMissing{QStringLiteral("Ни одна струна не даёт основного тона аккорда."),
                             QStringLiteral("No string sounds the root of the chord.")};
    lblNoS->setText(missing.text);
    SetTextColour(lblNoS, missing.rootMissing ? Colours::mark : Colours::normalText);
    lblNoS->setToolTip(missing.rootMissing ? rootMissing.In(tongue) : QString());
}
