#include "editor/PropertyPanes.h"

// Placeholder until the panes' controls exist: the panes stay empty.
namespace zentor {

struct PropertyPanes::Impl {};

PropertyPanes::PropertyPanes(const std::array<QWidget*, 5>&, Editor&, Prompter&,
                             const ProcessContext&, QObject* parent)
    : QObject(parent), d_(new Impl) {}
PropertyPanes::~PropertyPanes() { delete d_; }
void PropertyPanes::loadObject(int, int) {}
void PropertyPanes::showObjectGeometry(int, const IntRect&) {}
void PropertyPanes::runFileCommand(EditorView::FileCommand) {}
void PropertyPanes::commitPendingEdit() {}
bool PropertyPanes::showSettings(QWidget*) { return false; }

} // namespace zentor
