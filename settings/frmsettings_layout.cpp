// The settings dialog's controls, and where they stand.
#include "settings/frmsettings.h"

#include "controls/cataloguemodel.h"
#include "controls/goldbutton.h"
#include "controls/handle.h"
#include "controls/icons.h"
#include "controls/newcontrols.h"
#include "core/language.h"
#include "settings/settingstexts.h"
#include "settings/tuningdelegate.h"

#include <QBoxLayout>
#include <QGridLayout>

namespace {

constexpr int lowestNote = 12; // Positions in the note table, counted from 1.
constexpr int highestNote = 24;
constexpr int octaves = 4;

// The labels of the strings 1 to 6 are not in the order of their names.
constexpr std::array<const char16_t*, stringCount> labelNames{u"Label1", u"Label3", u"Label4",
                                                              u"Label5", u"Label6", u"Label2"};

template <typename Widget>
Widget* Named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

QString Indexed(const char16_t* name, std::size_t index) {
    return QStringLiteral("%1(%2)").arg(QString::fromUtf16(name)).arg(index);
}

} // namespace

void frmSettings::CreateControls() {
    Frame1 = Named(new QGroupBox(this), QStringLiteral("Frame1"));
    Frame2 = Named(new QGroupBox(this), QStringLiteral("Frame2"));
    Frame3 = Named(new QGroupBox(this), QStringLiteral("Frame3"));
    for (std::size_t i = 0; i < Options.size(); ++i)
        Options[i] = Named(new QRadioButton(Frame1), QStringLiteral("Option%1").arg(i + 1));
    lstTunings = new ListBox(QStringLiteral("lstTunings"), Frame1);
    lstTunings->setModel(new CatalogueModel(m_state.Tunings, lstTunings));
    lstTunings->setItemDelegate(new TuningDelegate(m_state.Tunings, lstTunings));
    lblNote = NewLabel(u"lblNote", Frame3);
    lblOctave = NewLabel(u"lblOctave", Frame3);
    for (std::size_t i = 0; i < stringCount; ++i) {
        StringLabels[i] = new TextLabel(QString::fromUtf16(labelNames[i]), Frame3);
        Text1[i] = Named(new QLineEdit(Frame3), Indexed(u"Text1", i));
        VScroll1[i] = new UpScrollBar(Indexed(u"VScroll1", i), lowestNote, highestNote, Frame3);
        VScroll2[i] = new UpScrollBar(Indexed(u"VScroll2", i), 0, octaves, Frame3);
        VScroll2[i]->setValue(octaves / 2);
        VScroll2[i]->setProperty("Tag", QString::number(VScroll2[i]->value()));
        // On the frame, but no child of it: a string can be heard while the frame is disabled.
        Image1[i] = new GoldButton(Indexed(u"Image1", i), this);
        Image1[i]->SetCaption(QString());
        Image1[i]->SetPicture(MakeIcon(Icon::Listen));
    }
    lstLang = new ListBox(QStringLiteral("lstLang"), Frame2);
    Check1 = Named(new QCheckBox(this), QStringLiteral("Check1"));
    Check1->setChecked(true);
    Check2 = Named(new QCheckBox(Frame1), QStringLiteral("Check2"));
    lblScheme = NewLabel(u"lblScheme", Frame1);
    lstScheme = new DropDown(QStringLiteral("lstScheme"), Frame1);
    cmdOK = Named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdCancel = Named(new QPushButton(this), QStringLiteral("cmdCancel"));
    cmdCancel->setAutoDefault(false);
}

void frmSettings::ShowTexts() {
    ApplyTexts(*this, SettingsTexts(), QStringLiteral("Settings"), TextsInUse(m_state));
    for (std::size_t i = 0; i < stringCount; ++i) {
        Text1[i]->setText(standardStrings.notes[i]);
        Text1[i]->setProperty("Tag", standardStrings.soundNumbers[i]);
    }
}

void frmSettings::LayOut() {
    auto* tuning = Spaced(new QVBoxLayout(Frame1), layoutGap);
    tuning->setSpacing(layoutGap / 2);
    for (QRadioButton* option : Options)
        tuning->addWidget(option);
    lstTunings->setMinimumSize(fontMetrics().averageCharWidth() * 44, fontMetrics().height() * 7);
    tuning->addWidget(lstTunings, 1);
    tuning->addWidget(Check2);
    auto* scheme = Spaced(new QHBoxLayout, 0);
    scheme->addWidget(lblScheme);
    scheme->addWidget(lstScheme, 1);
    tuning->addLayout(scheme);

    auto* language = Spaced(new QVBoxLayout(Frame2), layoutGap);
    lstLang->setMinimumHeight(fontMetrics().height() * 7);
    language->addWidget(lstLang);

    auto* buttons = Spaced(new QHBoxLayout, 0);
    buttons->addWidget(Check1);
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);

    auto* right = Spaced(new QVBoxLayout, 0);
    right->addLayout(LayOutStrings());
    right->addWidget(Frame2, 1);
    auto* columns = Spaced(new QHBoxLayout, 0);
    columns->addWidget(Frame1);
    columns->addLayout(right, 1);
    auto* window = Spaced(new QVBoxLayout(this), layoutGap + layoutGap / 2);
    window->addLayout(columns, 1);
    window->addLayout(buttons);
}

// The listen buttons lie over the last column of the frame, each in the row of its string.
QLayout* frmSettings::LayOutStrings() {
    const QSize listenSize = Image1[0]->sizeHint();
    const int rowHeight = std::max(Text1[0]->sizeHint().height(), listenSize.height());
    auto* strings = Spaced(new QGridLayout(Frame3), layoutGap);
    strings->setVerticalSpacing(layoutGap / 2);
    strings->addWidget(lblNote, 0, 2, Qt::AlignCenter);
    strings->addWidget(lblOctave, 0, 3, Qt::AlignCenter);
    strings->setColumnMinimumWidth(4, listenSize.width());
    strings->setColumnStretch(0, 1);
    auto* listen = Spaced(new QVBoxLayout, 0);
    listen->setSpacing(strings->verticalSpacing());
    for (std::size_t i = 0; i < stringCount; ++i) {
        const int row = static_cast<int>(i) + 1;
        strings->addWidget(StringLabels[i], row, 0);
        strings->addWidget(Text1[i], row, 1);
        strings->addWidget(VScroll1[i], row, 2, Qt::AlignHCenter);
        strings->addWidget(VScroll2[i], row, 3, Qt::AlignHCenter);
        Text1[i]->setFixedWidth(fontMetrics().averageCharWidth() * 8);
        for (QWidget* part : std::initializer_list<QWidget*>{VScroll1[i], VScroll2[i], Image1[i]})
            part->setFixedHeight(rowHeight);
        listen->addWidget(Image1[i]);
    }
    Frame3->setFixedHeight(Frame3->sizeHint().height());
    const QMargins frame = Frame3->contentsMargins() + strings->contentsMargins();
    listen->setContentsMargins(0, 0, frame.right(), frame.bottom());
    auto* both = new QGridLayout;
    both->addWidget(Frame3, 0, 0);
    both->addLayout(listen, 0, 0, Qt::AlignRight | Qt::AlignBottom);
    return both;
}

void frmSettings::Connect() {
    const std::array handlers{&frmSettings::Option1_Click, &frmSettings::Option2_Click,
                              &frmSettings::Option3_Click, &frmSettings::Option4_Click};
    for (std::size_t i = 0; i < Options.size(); ++i) {
        const auto handler = handlers[i];
        Handle(Options[i], &QRadioButton::toggled, this, [this, handler](bool checked) {
            if (checked)
                (this->*handler)();
        });
        // A click on an option that is checked already runs its handler, too.
        Handle(Options[i], &QRadioButton::clicked, this, handler);
    }
    Handle(lstTunings, &ListBox::RowChosen, this, &frmSettings::lstTunings_Click);
    for (int index = 0; index < stringCount; ++index) {
        const auto i = static_cast<std::size_t>(index);
        Handle(VScroll1[i], &QScrollBar::valueChanged, this,
               [this, index] { VScroll1_Change(index); });
        Handle(VScroll2[i], &QScrollBar::valueChanged, this,
               [this, index] { VScroll2_Change(index); });
        Handle(Image1[i], &GoldButton::Click, this, [this, index] { Image1_Click(index); });
    }
    Handle(cmdOK, &QPushButton::clicked, this, &frmSettings::cmdOK_Click);
    Handle(cmdCancel, &QPushButton::clicked, this, &frmSettings::cmdCancel_Click);
}

void frmSettings::EnableStrings(bool enable) {
    Frame3->setEnabled(enable);
    for (std::size_t i = 0; i < stringCount; ++i) {
        Text1[i]->setEnabled(enable);
        StringLabels[i]->setEnabled(enable);
    }
    lstTunings->setEnabled(enable);
}
