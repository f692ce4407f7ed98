#pragma once

#include "edit/PropertyEdit.h"

#include <QString>

class QBoxLayout;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QPushButton;
class QWidget;

namespace zentor {

class CommitLineEdit;

// Small helpers that keep the five pane builders short and alike.
namespace pane {

// Puts a scrolling page into the pane (so a short window clips nothing) and returns the
// layout to fill.
QBoxLayout* Page(QWidget* pane);
// A titled group with a form inside.
QFormLayout* Group(QBoxLayout* page, const QString& title, const QString& name = QString());
CommitLineEdit* Line(const QString& name, bool readOnly = false);
QPushButton* Button(const QString& name, const QString& caption, const QString& tip);
QComboBox* Combo(const QString& name, PropertyCombo rows);
// A 128 x 128 picture preview.
QLabel* Preview(const QString& name);
// A path box with its browse button beside it.
QWidget* WithButton(QWidget* box, QPushButton* button);
// The four position boxes of an object, as two rows of two.
void LocationRows(QFormLayout* form, const QString& prefix, std::array<CommitLineEdit*, 4>& out);
QLabel* Note(const QString& text);

} // namespace pane
} // namespace zentor
