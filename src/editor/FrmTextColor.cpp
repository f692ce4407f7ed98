#include "editor/FrmTextColor.h"

#include "edit/PropertyEdit.h"
#include "model/Document.h"
#include "render/ColorTable.h"
#include "render/TextDraw.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace zentor {

namespace {

constexpr int PreviewWidth = 270;
constexpr int PreviewHeight = 180;

template <typename W> W* Named(W* w, const char* name) {
    w->setObjectName(QLatin1String(name));
    return w;
}

QIcon Swatch(uint32_t argb) {
    QPixmap pm(14, 14);
    pm.fill(QColor::fromRgba(argb));
    QPainter p(&pm);
    p.setPen(Qt::gray);
    p.drawRect(0, 0, 13, 13);
    return QIcon(pm);
}

} // namespace

FrmTextColor::FrmTextColor(Document& doc, int textSlot, QWidget* parent)
    : QDialog(parent), doc_(doc), slot_(textSlot) {
    setObjectName(QStringLiteral("FrmTextColor"));
    setWindowTitle(QStringLiteral("Font"));
    setModal(true);

    CmbFont = Named(new QComboBox, "CmbFont");
    CmbFont->setEditable(true);
    CmbFont->setInsertPolicy(QComboBox::NoInsert);
    CmbFont->setEditText(QStringLiteral("Arial"));
    CmbStyle = Named(new QComboBox, "CmbStyle");
    CmbStyle->addItems(FontStyleRows());
    ChkUnderline = Named(new QCheckBox(QStringLiteral("Underline")), "ChkUnderline");
    ChkStrikeout = Named(new QCheckBox(QStringLiteral("Strikeout")), "ChkStrikeout");
    CmbSize = Named(new QComboBox, "CmbSize");
    CmbSize->setEditable(true);
    CmbSize->setInsertPolicy(QComboBox::NoInsert);
    CmbSize->addItems(FontSizeRows());
    CmbColor = Named(new QComboBox, "CmbColor");
    const QStringList names = GDIColorNames();
    for (int i = 0; i < names.size(); ++i)
        CmbColor->addItem(Swatch(GDIColor()[size_t(i)]), names[i]);
    CmbColor->setPlaceholderText(QStringLiteral("White"));
    CmbColor->setMaxVisibleItems(20);
    PicView = Named(new QLabel, "PicView");
    PicView->setFixedSize(PreviewWidth, PreviewHeight);
    PicView->setAutoFillBackground(true);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Font:"), CmbFont);
    form->addRow(QStringLiteral("Style:"), CmbStyle);
    auto* checks = new QHBoxLayout;
    checks->addWidget(ChkUnderline);
    checks->addWidget(ChkStrikeout);
    checks->addStretch(1);
    form->addRow(QString(), checks);
    form->addRow(QStringLiteral("Size:"), CmbSize);
    form->addRow(QStringLiteral("Color:"), CmbColor);

    auto* example = new QVBoxLayout;
    example->addWidget(new QLabel(QStringLiteral("Example:")));
    example->addWidget(PicView);
    example->addStretch(1);

    auto* ok = Named(new QPushButton(QStringLiteral("&OK")), "CmdColor0");
    auto* cancel = Named(new QPushButton(QStringLiteral("&Cancel")), "CmdColor1");
    ok->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);

    auto* columns = new QHBoxLayout;
    columns->addLayout(form, 1);
    columns->addLayout(example);
    auto* all = new QVBoxLayout(this);
    all->addLayout(columns);
    all->addLayout(buttons);

    connect(CmbFont, &QComboBox::activated, this, [this] { fontChanged(); });
    connect(CmbStyle, &QComboBox::activated, this, [this] { styleChanged(); });
    connect(ChkUnderline, &QCheckBox::clicked, this, [this] { styleChanged(); });
    connect(ChkStrikeout, &QCheckBox::clicked, this, [this] { styleChanged(); });
    connect(CmbSize, &QComboBox::editTextChanged, this,
            [this](const QString& text) { sizeChanged(text); });
    connect(CmbColor, &QComboBox::activated, this, [this](int row) { colorChanged(row); });
    connect(ok, &QPushButton::clicked, this, [this] { CmdColorClick(0); });
    connect(cancel, &QPushButton::clicked, this, [this] { CmdColorClick(1); });

    // Until the first preview the example shows the page's own background colour.
    QPalette pal = PicView->palette();
    pal.setColor(QPalette::Window, QColor::fromRgba(BackColorArgb(doc_.Header.BackColor)));
    PicView->setPalette(pal);

    if (slot_ < 0 || slot_ > MaxTexts)
        return;
    choice_ = BeginFontChoice(doc_.Texts[slot_]);
    GetFixedFonts();
    {
        const QSignalBlocker b1(CmbStyle), b2(ChkUnderline), b3(ChkStrikeout), b4(CmbSize),
            b5(CmbColor);
        const int style = choice_.style;
        CmbStyle->setCurrentIndex(StyleRow(style));
        ChkUnderline->setChecked(StyleUnderline(style));
        ChkStrikeout->setChecked(StyleStrikeout(style));
        choice_.style = StyleFromControls(CmbStyle->currentIndex(), ChkUnderline->isChecked(),
                                          ChkStrikeout->isChecked());
        CmbSize->setCurrentIndex(FindExactRow(FontSizeRows(), QString::number(choice_.size)));
        CmbSize->setEditText(QString::number(choice_.size));
        CmbColor->setCurrentIndex(GDIColorIndex(choice_.color));
    }
    PreviewFont();
}

void FrmTextColor::GetFixedFonts() {
    // Every family the system has, in the font database's order, duplicates and all.
    const QStringList families = QFontDatabase::families();
    const QSignalBlocker block(CmbFont);
    CmbFont->clear();
    CmbFont->addItems(families);
    const int row = FindExactRow(families, choice_.fontName);
    CmbFont->setCurrentIndex(row);
    if (row >= 0)
        choice_.fontName = families[row];
    CmbFont->setEditText(choice_.fontName);
}

void FrmTextColor::styleChanged() {
    choice_.style = StyleFromControls(CmbStyle->currentIndex(), ChkUnderline->isChecked(),
                                      ChkStrikeout->isChecked());
    PreviewFont();
}

void FrmTextColor::fontChanged() {
    choice_.fontName = CmbFont->currentText();
    PreviewFont();
}

void FrmTextColor::sizeChanged(const QString& text) {
    const std::optional<int32_t> size = ParseFontSize(text);
    if (!size)
        return;
    choice_.size = *size;
    PreviewFont();
}

void FrmTextColor::colorChanged(int row) {
    if (row < 0 || row >= GDIColorCount)
        return;
    choice_.color = GDIColor()[size_t(row)];
    PreviewFont();
}

void FrmTextColor::PreviewFont() {
    QImage img(PreviewWidth, PreviewHeight, QImage::Format_ARGB32_Premultiplied);
    img.fill(QColor::fromRgba(PreviewBackground(choice_.color)));
    const QString before = choice_.fontName;
    const QString family = PreviewFamily(choice_, FontFamilyAvailable);
    if (family != before) {
        const QSignalBlocker block(CmbFont);
        CmbFont->setEditText(family);
    }
    const int hint = slot_ >= 0 && slot_ <= MaxTexts ? doc_.Texts[slot_].TextHint : 0;
    {
        QPainter p(&img);
        DrawFontText(p, QStringLiteral("Vitara"), 0, 0, PreviewWidth, PreviewHeight, family,
                     choice_.size, choice_.style, 1, 1, choice_.color, 0, hint, 0);
    }
    preview_ = img;
    PicView->setPixmap(QPixmap::fromImage(img));
}

void FrmTextColor::CmdColorClick(int index) {
    if (index == 0 && slot_ >= 0 && slot_ <= MaxTexts) {
        if (ApplyFontChoice(doc_.Texts[slot_], choice_))
            doc_.Dirty = true;
        accept();
        return;
    }
    reject();
}

} // namespace zentor
