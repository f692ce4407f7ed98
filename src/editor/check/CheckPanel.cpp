#include "editor/check/CheckPanel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace zentor {

CheckPanel::CheckPanel(QWidget* parent) : QDockWidget(QStringLiteral("Check Résumé"), parent) {
    setObjectName(QStringLiteral("FrmCheck"));
    auto* body = new QWidget(this);
    auto* column = new QVBoxLayout(body);
    auto* top = new QHBoxLayout;
    top->addWidget(new QLabel(QStringLiteral("Language:")));
    language_ = new QComboBox;
    language_->setObjectName(QStringLiteral("CmbCheckLanguage"));
    top->addWidget(language_, 1);
    auto* again = new QPushButton(QStringLiteral("Check Again"));
    again->setObjectName(QStringLiteral("CmdCheckAgain"));
    top->addWidget(again);
    column->addLayout(top);

    list_ = new QTreeWidget;
    list_->setObjectName(QStringLiteral("LstFindings"));
    list_->setHeaderLabels({QStringLiteral("Page"), QStringLiteral("Object"),
                            QStringLiteral("Kind"), QStringLiteral("Problem")});
    list_->setRootIsDecorated(false);
    list_->setWordWrap(true);
    list_->header()->setStretchLastSection(true);
    column->addWidget(list_, 1);
    summary_ = new QLabel;
    summary_->setObjectName(QStringLiteral("LabCheckSummary"));
    column->addWidget(summary_);
    setWidget(body);

    connect(again, &QPushButton::clicked, this, &CheckPanel::checkAgain);
    connect(language_, &QComboBox::activated, this,
            [this](int row) { emit languageChosen(language_->itemText(row)); });
    connect(list_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        const int i = list_->indexOfTopLevelItem(item);
        if (i >= 0 && size_t(i) < findings_.size())
            emit chosen(findings_[size_t(i)]);
    });
    connect(list_, &QTreeWidget::itemClicked, list_, &QTreeWidget::itemActivated);
}

void CheckPanel::setLanguages(const QStringList& languages, const QString& current) {
    language_->clear();
    language_->addItems(languages);
    if (!languages.contains(current))
        language_->addItem(current); // chosen once, gone since: shown so the message makes sense
    language_->setCurrentText(current);
}

void CheckPanel::showFindings(const Document& doc, std::vector<Finding> findings) {
    findings_ = std::move(findings);
    list_->clear();
    for (const Finding& f : findings_) {
        const QString problem = FindingProblem(f);
        auto* item =
            new QTreeWidgetItem(list_, {PageName(doc, f.tab), f.object, KindName(f.kind), problem});
        item->setToolTip(3, problem);
    }
    for (int c = 0; c < 3; ++c)
        list_->resizeColumnToContents(c);
    summary_->setText(findings_.empty() ? NothingToFix()
                                        : FindingCount(findings_.size()) +
                                              QStringLiteral(": choose one to go to it."));
}

} // namespace zentor
