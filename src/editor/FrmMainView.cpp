// What FrmMain shows when the editor tells it to.
#include "editor/FrmAbout.h"
#include "editor/FrmMain.h"
#include "editor/PropertyPanes.h"
#include "editor/RecentFilesMenu.h"
#include "editor/WorkspaceWidgets.h"
#include "model/ProcessContext.h"
#include "render/WorkspacePainter.h"

#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTabBar>
#include <QUrl>

namespace zentor {

void FrmMain::paintWorkspace(int tab, int hoverIcon) {
    // A frame the painter refuses (a null picture) shows as a white page.
    picWorkSpace_->setBuffer(PaintWorkspace(doc_, tab, hoverIcon, res_, ctx_, &pictures_));
}

void FrmMain::setObjectRows(const QStringList& rows) {
    QSignalBlocker block(cmbPropertity_);
    cmbPropertity_->clear();
    cmbPropertity_->addItems(rows);
    cmbPropertity_->setCurrentIndex(-1);
}

void FrmMain::setCurrentRow(int row) {
    QSignalBlocker block(cmbPropertity_);
    cmbPropertity_->setCurrentIndex(row);
}

void FrmMain::showPropertyPane(int kind) {
    for (int i = 0; i < int(picElementLoc_.size()); ++i)
        picElementLoc_[i]->setVisible(i == kind);
}

void FrmMain::setPropertyCaption(const QString& caption) {
    labPropertity_->setText(caption);
}

void FrmMain::loadObject(int kind, int index) {
    panes_->loadObject(kind, index);
}

void FrmMain::showObjectGeometry(int kind, const IntRect& r) {
    panes_->showObjectGeometry(kind, r);
}

void FrmMain::showSelectionFrame(bool visible) {
    labAdd_->setVisible(visible);
    for (SizeHandle* h : labSize_)
        h->setVisible(visible);
}

void FrmMain::placeSelectionFrame(const IntRect& frame, const std::array<QPointF, 8>& handles) {
    labAdd_->setGeometry(frame.Left, frame.Top, frame.Width, frame.Height);
    for (int k = 0; k < 8; ++k) {
        // Half-pixel positions land on the pixel a label would have shown them at.
        labSize_[k]->move(qFloor(handles[k].x()), qFloor(handles[k].y()));
        labSize_[k]->raise();
    }
    if (inPlaceOpen_)
        txtAdd_->raise();
}

void FrmMain::openInPlaceEditor(const IntRect& at, const QString& text) {
    txtAdd_->setGeometry(at.Left, at.Top, at.Width, at.Height);
    {
        QSignalBlocker block(txtAdd_);
        txtAdd_->setPlainText(text);
    }
    inPlaceOpen_ = true;
    txtAdd_->show();
    txtAdd_->raise();
    txtAdd_->setFocus(Qt::OtherFocusReason);
    txtAdd_->moveCursor(QTextCursor::End);
}

std::optional<QString> FrmMain::inPlaceText() const {
    if (!inPlaceOpen_)
        return std::nullopt;
    return txtAdd_->toPlainText();
}

void FrmMain::closeInPlaceEditor(const QString&) {
    // Closed first: hiding the focused box reports a focus loss, which must find it closed.
    // The panel's text box is filled again from the record when the page is refreshed.
    inPlaceOpen_ = false;
    {
        QSignalBlocker block(txtAdd_);
        txtAdd_->clear();
    }
    if (txtAdd_->hasFocus())
        picWorkSpace_->setFocus(Qt::OtherFocusReason);
    txtAdd_->hide();
}

void FrmMain::setStripCaption(int strip, const QString& caption) {
    if (strip < 1 || strip > tabTitle_->count())
        return;
    // The strip shows the name as typed: an ampersand is not a mnemonic here.
    QString shown = caption;
    shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
    tabTitle_->setTabText(strip - 1, shown);
}

void FrmMain::selectStrip(int strip) {
    if (strip < 1 || strip > tabTitle_->count())
        return;
    syncingStrip_ = true;
    tabTitle_->setCurrentIndex(strip - 1);
    syncingStrip_ = false;
}

int FrmMain::selectedStrip() const {
    return tabTitle_->currentIndex() + 1;
}

IntPoint FrmMain::viewportSize() const {
    return {picShow_->width(), picShow_->height()};
}

void FrmMain::placeWorkspace(const IntRect& r) {
    picWorkSpace_->setGeometry(r.Left, r.Top, r.Width, r.Height);
    updateScrollBars(false);
}

void FrmMain::setPointer(PointerTarget target, Pointer pointer) {
    if (target == PointerTarget::Window) {
        const bool wait = pointer == Pointer::Hourglass;
        if (wait && !hourglass_)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else if (!wait && hourglass_)
            QApplication::restoreOverrideCursor();
        hourglass_ = wait;
        return;
    }
    QWidget* w = target == PointerTarget::Frame ? static_cast<QWidget*>(labAdd_) : picWorkSpace_;
    switch (pointer) {
    case Pointer::Move:
        w->setCursor(Qt::SizeAllCursor);
        break;
    case Pointer::RingIcon:
        w->setCursor(Qt::PointingHandCursor);
        break;
    case Pointer::Hourglass:
        w->setCursor(Qt::WaitCursor);
        break;
    case Pointer::Normal:
        w->unsetCursor();
        break;
    }
}

void FrmMain::setStatusText(const QString& text) {
    statusPanel_->setText(text);
    updateTitle();
}

void FrmMain::showEditMenu() {
    mainEdit_->popup(QCursor::pos());
}

void FrmMain::runFileCommand(FileCommand command) {
    panes_->runFileCommand(command);
}

void FrmMain::showSettings() {
    if (panes_->showSettings(this))
        editor_.frameSizeChanged();
}

void FrmMain::showAbout() {
    FrmAbout about(this);
    about.exec();
}

void FrmMain::openUrl(const QString& url) {
    QDesktopServices::openUrl(QUrl(url));
}

void FrmMain::projectFileUsed(const QString& path) {
    recent_->add(path);
}

} // namespace zentor
