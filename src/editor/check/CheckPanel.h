#pragma once

#include "check/Finding.h"

#include <QDockWidget>

#include <functional>
#include <vector>

class QComboBox;
class QLabel;
class QTreeWidget;

namespace zentor {

// "Check Résumé": the findings of the last check, one row each (page, object, what is
// wrong); choosing a row reports it. The language box chooses the dictionary.
class CheckPanel : public QDockWidget {
    Q_OBJECT
public:
    explicit CheckPanel(QWidget* parent = nullptr);

    void setLanguages(const QStringList& languages, const QString& current);
    void showFindings(const Document& doc, std::vector<Finding> findings);
    const std::vector<Finding>& findings() const { return findings_; }

signals:
    void chosen(const Finding& finding);
    void checkAgain();
    void languageChosen(const QString& language);

private:
    QComboBox* language_;
    QTreeWidget* list_;
    QLabel* summary_;
    std::vector<Finding> findings_;
};

} // namespace zentor
