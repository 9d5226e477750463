#include "voicings/filtergroup.h"

#include "controls/newcontrols.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace {

QString In(Tongue tongue, const char16_t* russian, const char16_t* english) {
    return QString::fromUtf16(tongue == Tongue::Russian ? russian : english);
}

QCheckBox* NewCheckBox(const QString& name, QWidget* parent) {
    auto* box = new QCheckBox(parent);
    box->setObjectName(name);
    return box;
}

void SetTextsKeepingRow(DropDown* list, const QStringList& texts) {
    const QSignalBlocker silent(list);
    const int row = std::max(0, list->currentIndex());
    list->SetTexts(texts);
    list->setCurrentIndex(row);
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
    ShowTexts(Tongue::Russian);
    LetAllPass();
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

void FilterGroup::ShowTexts(Tongue tongue) {
    const auto in = [tongue](const char16_t* russian, const char16_t* english) {
        return In(tongue, russian, english);
    };
    lblFret->setText(in(u"Лады от и до:", u"Frets from and to:"));
    lblOpenStrings->setText(in(u"Открытые струны:", u"Open strings:"));
    lblFingers->setText(in(u"Пальцев:", u"Fingers:"));
    lblBass->setText(in(u"В басу:", u"In the bass:"));
    lblStrings->setText(in(u"Струны:", u"Strings:"));
    lblOrder->setText(in(u"Порядок:", u"Order:"));
    chkNoBarre->setText(in(u"без барре", u"no barre"));
    chkComplete->setText(in(u"все ноты аккорда", u"every note of the chord"));
    cmdAll->SetCaption(in(u"Показать все", u"Show all"));

    SetTextsKeepingRow(lstFromFret, Frets());
    SetTextsKeepingRow(lstToFret, Frets());
    SetTextsKeepingRow(lstOpenStrings,
                       {in(u"всё равно", u"any"), in(u"есть", u"some"), in(u"нет", u"none")});
    SetTextsKeepingRow(lstFingers, {in(u"сколько угодно", u"any number"),
                                    in(u"не больше трёх", u"three at most"),
                                    in(u"не больше двух", u"two at most"), in(u"один", u"one")});
    SetTextsKeepingRow(lstBass, {in(u"всё равно", u"any note"), in(u"основной тон", u"the root"),
                                 in(u"терция", u"the third"), in(u"квинта", u"the fifth")});
    SetTextsKeepingRow(
        lstOrder, {in(u"сначала обычные", u"usual first"), in(u"по месту на грифе", u"by position"),
                   in(u"по басу", u"by bass"), in(u"ближе к руке", u"near the hand")});

    struct Named {
        QWidget* control;
        QString text;
    };
    for (const auto& [control, text] :
         {Named{lstFromFret, in(u"Нижний зажатый лад: от", u"The lowest stopped fret: from")},
          Named{lstToFret, in(u"Нижний зажатый лад: до", u"The lowest stopped fret: to")},
          Named{lstOpenStrings, in(u"Открытые струны", u"Open strings")},
          Named{lstFingers, in(u"Сколько пальцев нужно", u"How many fingers it takes")},
          Named{lstBass, in(u"Самая низкая нота", u"The lowest note")},
          Named{lstOrder,
                in(u"Порядок. Ближе к руке: меньше ладов и струн, на которые сдвигаются пальцы, и "
                   u"пальцев, которые поднимаются или ставятся, если рука держит то, что на грифе",
                   u"Order. Near the hand: the fewer frets and strings that fingers move and "
                   u"fingers that are lifted or set, from the shape on the neck")},
          Named{cmdAll, in(u"Снять все условия", u"Take back all filters")}}) {
        control->setToolTip(text);
        control->setAccessibleName(text);
    }
    for (int string = 1; string <= stringCount; ++string) {
        QCheckBox* box = chkString[static_cast<std::size_t>(string - 1)];
        box->setToolTip(in(u"Струна %1: отмечена звучит, не отмечена заглушена, наполовину "
                           u"отмечена всё равно",
                           u"String %1: checked it sounds, unchecked it is muted, half checked "
                           u"either")
                            .arg(string));
        box->setAccessibleName(in(u"Струна %1", u"String %1").arg(string));
    }
}
