#include "editor/props/PaneLayout.h"

#include "editor/props/CommitEdits.h"

#include <QComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace zentor::pane {

QBoxLayout* Page(QWidget* pane) {
    auto* outer = new QVBoxLayout(pane);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea(pane);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* content = new QWidget(scroll);
    auto* page = new QVBoxLayout(content);
    page->setContentsMargins(6, 6, 6, 6);
    page->setSpacing(8);
    scroll->setWidget(content);
    outer->addWidget(scroll);
    return page;
}

QFormLayout* Group(QBoxLayout* page, const QString& title, const QString& name) {
    auto* box = new QGroupBox(title);
    if (!name.isEmpty())
        box->setObjectName(name);
    auto* form = new QFormLayout(box);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setContentsMargins(6, 6, 6, 6);
    page->addWidget(box);
    return form;
}

CommitLineEdit* Line(const QString& name, bool readOnly) {
    auto* e = new CommitLineEdit(name);
    e->setReadOnly(readOnly);
    e->setMinimumWidth(60);
    return e;
}

QPushButton* Button(const QString& name, const QString& caption, const QString& tip) {
    auto* b = new QPushButton(caption);
    b->setObjectName(name);
    if (!tip.isEmpty())
        b->setToolTip(tip);
    if (caption == QLatin1String("..."))
        b->setFixedWidth(32);
    return b;
}

QComboBox* Combo(const QString& name, PropertyCombo rows) {
    auto* c = new QComboBox;
    c->setObjectName(name);
    c->addItems(ComboRows(rows));
    c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    c->setMinimumContentsLength(8);
    return c;
}

QLabel* Preview(const QString& name) {
    auto* l = new QLabel;
    l->setObjectName(name);
    l->setFixedSize(128, 128);
    l->setFrameShape(QFrame::NoFrame);
    l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return l;
}

QWidget* WithButton(QWidget* box, QPushButton* button) {
    auto* row = new QWidget;
    auto* h = new QHBoxLayout(row);
    h->setContentsMargins(0, 0, 0, 0);
    h->setSpacing(4);
    h->addWidget(box, 1);
    h->addWidget(button);
    return row;
}

void LocationRows(QFormLayout* form, const QString& prefix, std::array<CommitLineEdit*, 4>& out) {
    static const char* const names[4] = {"Left", "Top", "Width", "Height"};
    for (int i = 0; i < 4; ++i) {
        out[size_t(i)] = Line(prefix + QLatin1String(names[i]));
        out[size_t(i)]->setAlignment(Qt::AlignRight);
    }
    auto pair = [&](int a, int b) {
        auto* row = new QWidget;
        auto* h = new QHBoxLayout(row);
        h->setContentsMargins(0, 0, 0, 0);
        h->addWidget(out[size_t(a)], 1);
        auto* second = new QLabel(QLatin1String(names[b]) + QLatin1Char(':'));
        h->addWidget(second);
        h->addWidget(out[size_t(b)], 1);
        form->addRow(QLatin1String(names[a]) + QLatin1Char(':'), row);
    };
    pair(0, 1);
    pair(2, 3);
}

QLabel* Note(const QString& text) {
    auto* l = new QLabel(text);
    l->setWordWrap(true);
    QFont f = l->font();
    f.setPointSizeF(f.pointSizeF() * 0.9);
    l->setFont(f);
    return l;
}

} // namespace zentor::pane
