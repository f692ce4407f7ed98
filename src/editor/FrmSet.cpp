#include "editor/FrmSet.h"

#include "model/Document.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace zentor {

namespace {

template <typename W> W* Named(W* w, const char* name) {
    w->setObjectName(QLatin1String(name));
    return w;
}

// A slider with its caption above and its marks below, spread under the groove.
QWidget* SliderBlock(const QString& caption, QSlider* slider, const QStringList& marks) {
    auto* block = new QWidget;
    auto* v = new QVBoxLayout(block);
    v->setContentsMargins(0, 0, 0, 0);
    v->setSpacing(2);
    v->addWidget(new QLabel(caption));
    v->addWidget(slider);
    auto* h = new QHBoxLayout;
    for (int i = 0; i < marks.size(); ++i) {
        if (i > 0)
            h->addStretch(1);
        h->addWidget(new QLabel(marks[i]));
    }
    if (marks.size() == 1) { // a lone mark belongs to the right end
        h->insertStretch(0, 1);
    }
    v->addLayout(h);
    return block;
}

} // namespace

FrmSet::FrmSet(Document& doc, Prompter& prompter, QWidget* parent)
    : QDialog(parent), doc_(doc), prompter_(prompter) {
    setObjectName(QStringLiteral("FrmSet"));
    setWindowTitle(QStringLiteral("Settings"));
    setModal(true);

    auto* slide = Named(new QGroupBox(QStringLiteral("Slide Show")), "FraSlide");
    ChkSlide = Named(new QCheckBox(QStringLiteral("Show Slide as Run")), "ChkSlide");
    SdSpeed = Named(new QSlider(Qt::Horizontal), "SdSpeed");
    SdSpeed->setRange(0, SpeedSliderMax);
    SdSpeed->setPageStep(1);
    SdSpeed->setTickPosition(QSlider::TicksBelow);
    // The stored speed grows as the show slows down; the slow end is on the left.
    SdSpeed->setInvertedAppearance(true);
    auto* sv = new QVBoxLayout(slide);
    sv->addWidget(ChkSlide);
    sv->addWidget(
        SliderBlock(QStringLiteral("Slide Show Speed"), SdSpeed,
                    {QStringLiteral("Slow"), QStringLiteral("Medium"), QStringLiteral("Fast")}));

    auto* music = Named(new QGroupBox(QStringLiteral("Background Music")), "FraMusic");
    ChkRepeat = Named(new QCheckBox(QStringLiteral("Auto Repeat")), "ChkRepeat");
    SldBakMusicVol = Named(new QSlider(Qt::Horizontal), "SldBakMusicVol");
    SldBakMusicVol->setRange(0, MusicVolumeSliderMax);
    SldBakMusicVol->setPageStep(1);
    SldBakMusicVol->setTickPosition(QSlider::TicksBelow);
    TxtMusic = Named(new QLineEdit(QStringLiteral("None")), "TxtMusic");
    TxtMusic->setReadOnly(true);
    TxtMusic->setMinimumWidth(220);
    auto* cmdMusic = Named(new QPushButton(QStringLiteral("Browser")), "CmdMusic");
    cmdMusic->setAutoDefault(false);
    auto* mv = new QVBoxLayout(music);
    mv->addWidget(ChkRepeat);
    mv->addWidget(SliderBlock(QStringLiteral("Backgroup Music Volume"), SldBakMusicVol,
                              {QStringLiteral("100")}));
    auto* path = new QHBoxLayout;
    path->addWidget(TxtMusic, 1);
    path->addWidget(cmdMusic);
    mv->addLayout(path);

    auto* frame = Named(new QGroupBox(QStringLiteral("Frame Size")), "FraFrame");
    CBFrameSize = Named(new QComboBox, "CBFrameSize");
    CBFrameSize->addItems(FrameSizeRows());
    ChkCustom = Named(new QCheckBox(QStringLiteral("Custom Size(pixels)")), "ChkCustom");
    TxtWidth = Named(new QLineEdit, "TxtWidth");
    TxtHeight = Named(new QLineEdit, "TxtHeight");
    TxtWidth->setEnabled(false);
    TxtHeight->setEnabled(false);
    auto* grid = new QGridLayout(frame);
    grid->addWidget(CBFrameSize, 0, 0, 1, 4);
    grid->addWidget(ChkCustom, 1, 0, 1, 4);
    grid->addWidget(new QLabel(QStringLiteral("Width:")), 2, 0);
    grid->addWidget(TxtWidth, 2, 1);
    grid->addWidget(new QLabel(QStringLiteral("Height:")), 2, 2);
    grid->addWidget(TxtHeight, 2, 3);
    grid->addWidget(Named(new QLabel(QStringLiteral("(800 x 600 is recommended)")), "Label4"), 3, 0,
                    1, 4);

    auto* ok = Named(new QPushButton(QStringLiteral("&OK")), "CmdSet0");
    auto* cancel = Named(new QPushButton(QStringLiteral("&Cancel")), "CmdSet1");
    ok->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);

    auto* left = new QVBoxLayout;
    left->addWidget(slide);
    left->addWidget(music);
    auto* right = new QVBoxLayout;
    right->addWidget(frame);
    right->addStretch(1);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left, 3);
    columns->addLayout(right, 2);
    auto* all = new QVBoxLayout(this);
    all->addLayout(columns);
    all->addLayout(buttons);

    connect(ChkCustom, &QCheckBox::clicked, this, [this] { ChkCustomClick(); });
    connect(cmdMusic, &QPushButton::clicked, this, [this] { CmdMusicClick(); });
    connect(ok, &QPushButton::clicked, this, [this] { CmdSetClick(0); });
    connect(cancel, &QPushButton::clicked, this, [this] { CmdSetClick(1); });

    IniCBFrame();
}

SettingsForm FrmSet::form() const {
    SettingsForm f;
    f.music = TxtMusic->text();
    f.musicVolume = SldBakMusicVol->value();
    f.autoRepeat = ChkRepeat->isChecked();
    f.showSlide = ChkSlide->isChecked();
    f.speed = SdSpeed->value();
    f.widthText = TxtWidth->text();
    f.heightText = TxtHeight->text();
    f.custom = ChkCustom->isChecked();
    f.frameRow = CBFrameSize->currentIndex();
    return f;
}

void FrmSet::setForm(const SettingsForm& f) {
    TxtMusic->setText(f.music);
    SldBakMusicVol->setValue(f.musicVolume);
    ChkRepeat->setChecked(f.autoRepeat);
    ChkSlide->setChecked(f.showSlide);
    SdSpeed->setValue(f.speed);
    TxtWidth->setText(f.widthText);
    TxtHeight->setText(f.heightText);
    CBFrameSize->setCurrentIndex(f.frameRow);
    ChkCustom->setChecked(f.custom);
    ChkCustomClick();
}

void FrmSet::IniCBFrame() {
    setForm(zentor::IniCBFrame(doc_.Header));
}

void FrmSet::ChkCustomClick() {
    const bool custom = ChkCustom->isChecked();
    CBFrameSize->setEnabled(!custom);
    TxtWidth->setEnabled(custom);
    TxtHeight->setEnabled(custom);
}

void FrmSet::CmdMusicClick() {
    SettingsForm f = form();
    ChooseSettingsMusic(prompter_, f);
    TxtMusic->setText(f.music);
}

void FrmSet::CmdSetClick(int index) {
    if (index == 0) {
        const ScriptHeader before = doc_.Header;
        ApplySettings(doc_.Header, form());
        if (!(before == doc_.Header))
            doc_.Dirty = true;
        accept();
    } else {
        reject();
    }
}

} // namespace zentor
