#include "voicings/filtergroup.h"

#include "controls/newcontrols.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace {

QCheckBox* NewCheckBox(const QString& name, QWidget* parent) {
    auto* box = new QCheckBox(parent);
    box->setObjectName(name);
    return box;
}

QStringList Frets() {
    QStringList frets;
    for (int fret = 1; fret <= highestVoicingFret; ++fret)
        frets += QString::number(fret);
    return frets;
}

} // namespace

FilterGroup::FilterGroup(QWidget* window)
    : filters(Spaced(new QGridLayout, 0)),
      lblFret(NewLabel(u"lblFret", window)),
      lstFromFret(new DropDown(QStringLiteral("lstFromFret"), window)),
      lstToFret(new DropDown(QStringLiteral("lstToFret"), window)),
      lblOpenStrings(NewLabel(u"lblOpenStrings", window)),
      lstOpenStrings(new DropDown(QStringLiteral("lstOpenStrings"), window)),
      lblFingers(NewLabel(u"lblFingers", window)),
      lstFingers(new DropDown(QStringLiteral("lstFingers"), window)),
      lblBass(NewLabel(u"lblBass", window)),
      lstBass(new DropDown(QStringLiteral("lstBass"), window)),
      lblStrings(NewLabel(u"lblStrings", window)),
      lblOrder(NewLabel(u"lblOrder", window)),
      lstOrder(new DropDown(QStringLiteral("lstOrder"), window)) {
    auto* strings = Spaced(new QHBoxLayout, 0);
    for (int string = stringCount; string >= 1; --string) { // As in the diagrams.
        auto* box = NewCheckBox(QStringLiteral("chkString(%1)").arg(string - 1), window);
        box->setText(QString::number(string));
        box->setTristate(true);
        chkString[static_cast<std::size_t>(string - 1)] = box;
        strings->addWidget(box);
    }
    strings->addStretch(1);
    chkNoBarre = NewCheckBox(QStringLiteral("chkNoBarre"), window);
    chkComplete = NewCheckBox(QStringLiteral("chkComplete"), window);
    cmdAll = NewCaptionButton(u"cmdAll", window);

    auto* frets = Spaced(new QHBoxLayout, 0);
    frets->addWidget(lstFromFret);
    frets->addWidget(lstToFret);
    filters->addWidget(lblFret, 0, 0);
    filters->addLayout(frets, 0, 1);
    filters->addWidget(lblOpenStrings, 0, 2);
    filters->addWidget(lstOpenStrings, 0, 3);
    filters->addWidget(lblFingers, 1, 0);
    filters->addWidget(lstFingers, 1, 1);
    filters->addWidget(lblBass, 1, 2);
    filters->addWidget(lstBass, 1, 3);
    filters->addWidget(lblStrings, 2, 0);
    filters->addLayout(strings, 2, 1);
    filters->addWidget(chkNoBarre, 2, 2, 1, 2);
    filters->addWidget(lblOrder, 3, 0);
    filters->addWidget(lstOrder, 3, 1);
    filters->addWidget(chkComplete, 3, 2);
    filters->addWidget(cmdAll, 3, 3, Qt::AlignRight);
    filters->setColumnStretch(1, 1);
    filters->setColumnStretch(3, 1);
    for (DropDown* list : {lstFromFret, lstToFret})
        list->SetTexts(Frets());
}

VoicingFilter FilterGroup::Filter() const {
    VoicingFilter filter;
    filter.fromFret = lstFromFret->currentIndex() + 1;
    filter.toFret = lstToFret->currentIndex() + 1;
    if (lstOpenStrings->currentIndex() > 0)
        filter.openStrings = lstOpenStrings->currentIndex() == 1;
    filter.noBarre = chkNoBarre->isChecked();
    filter.mostFingers = fingerCount - lstFingers->currentIndex();
    if (const int degree = lstBass->currentIndex(); degree > 0)
        filter.bass = static_cast<ChordDegree>(degree - 1);
    filter.complete = chkComplete->isChecked();
    for (std::size_t string = 0; string < stringCount; ++string)
        if (chkString[string]->checkState() != Qt::PartiallyChecked)
            filter.sounds[string] = chkString[string]->isChecked();
    return filter;
}

void FilterGroup::LetAllPass() {
    for (DropDown* list : Lists()) {
        const QSignalBlocker silent(list);
        if (list != lstOrder)
            list->setCurrentIndex(list == lstToFret ? highestVoicingFret - 1 : 0);
    }
    for (QCheckBox* box : {chkNoBarre, chkComplete}) {
        const QSignalBlocker silent(box);
        box->setChecked(false);
    }
    for (QCheckBox* box : chkString) {
        const QSignalBlocker silent(box);
        box->setCheckState(Qt::PartiallyChecked);
    }
}
