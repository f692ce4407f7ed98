#pragma once

#include <QDialog>

namespace zentor {

// The About box: product name, version, legal line, and two links.
class FrmAbout : public QDialog {
    Q_OBJECT
public:
    explicit FrmAbout(QWidget* parent = nullptr);
};

} // namespace zentor
