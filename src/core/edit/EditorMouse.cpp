#include "edit/DragGeometry.h"
#include "edit/Editor.h"
#include "edit/HitTest.h"
#include "model/TabMap.h"

namespace zentor {

namespace {
bool ContentTab(int tab) {
    return tab >= 1 && tab <= 7;
}
} // namespace

void Editor::workspaceMouseDown(MouseButton b, IntPoint p) {
    commitInPlaceEdit();
    recordPending();
    undo_.breakMerge();
    const int row = SelectByMouse(doc_, st_.ObjectMap, st_.CurrentTab, p.x, p.y);
    if (row >= 0)
        selectRow(row);
    if (b == MouseButton::Right || !ContentTab(st_.CurrentTab) || st_.CurrentRow == 0)
        return;
    st_.WorkspaceMoving = true;
    beginMove(EditorView::PointerTarget::Workspace, p);
}

void Editor::beginMove(EditorView::PointerTarget target, IntPoint p) {
    view_.setPointer(target, EditorView::Pointer::Move);
    st_.DragLeft = st_.Frame.Left;
    st_.DragTop = st_.Frame.Top;
    st_.CursorDown = p;
}

void Editor::moveFrameTo(IntPoint p) {
    IntRect r{p.x - st_.CursorDown.x + st_.DragLeft, p.y - st_.CursorDown.y + st_.DragTop,
              st_.Frame.Width, st_.Frame.Height};
    moveAdd(r);
    RefreshData();
}

void Editor::workspaceMouseMove(IntPoint p) {
    if (st_.WorkspaceMoving)
        moveFrameTo(p);
    if (st_.CurrentTab != ProfileTab)
        return;
    const int i = HoverIconAt(st_.IconRects, p.x, p.y);
    view_.setPointer(EditorView::PointerTarget::Workspace,
                     i ? EditorView::Pointer::RingIcon : EditorView::Pointer::Normal);
    if (i != st_.HoverIcon) {
        st_.HoverIcon = i;
        RefreshTab(st_.CurrentTab);
    }
}

void Editor::workspaceMouseUp(MouseButton b) {
    if (b == MouseButton::Left) {
        // A move by the workspace leaves the dirty flag alone (the frame's own move sets it).
        st_.WorkspaceMoving = false;
        view_.setPointer(EditorView::PointerTarget::Workspace, EditorView::Pointer::Normal);
        RefreshData();
        recordChange(StepName(QStringLiteral("Move"), st_.SelectedKind, st_.SelectedIndex));
        RefreshTab(st_.CurrentTab);
    } else if (b == MouseButton::Right && ContentTab(st_.CurrentTab)) {
        view_.showEditMenu();
    }
}

void Editor::workspaceClick() {
    if (st_.CurrentTab != ProfileTab)
        return;
    const int p = GetTabIndex(st_.HoverIcon);
    if (p < 1 || p > 9)
        return;
    const bool changed = view_.selectedStrip() != p;
    view_.selectStrip(p);
    if (changed)
        stripClicked();
    else
        st_.CurrentTab = StripToTab(p);
}

void Editor::workspaceDoubleClick() {
    using FC = EditorView::FileCommand;
    if (st_.CurrentTab == SlideShowTab)
        view_.runFileCommand(FC::BackPicture);
    else if (ContentTab(st_.CurrentTab))
        view_.runFileCommand(FC::TabPicture);
    else if (st_.CurrentTab == ProfileTab)
        view_.runFileCommand(FC::UserIcon);
}

void Editor::frameMouseDown(MouseButton b, IntPoint p) {
    if (b == MouseButton::Right)
        return;
    recordPending();
    // No new hit test: the selected object moves even where another lies on top of it.
    st_.FrameMoving = true;
    beginMove(EditorView::PointerTarget::Frame, p);
}

void Editor::frameMouseMove(IntPoint p) {
    if (st_.FrameMoving)
        moveFrameTo(p);
}

void Editor::frameMouseUp(MouseButton b) {
    if (b != MouseButton::Left) {
        view_.showEditMenu();
        return;
    }
    doc_.Dirty = true;
    st_.FrameMoving = false;
    view_.setPointer(EditorView::PointerTarget::Frame, EditorView::Pointer::Normal);
    RefreshData();
    recordChange(StepName(QStringLiteral("Move"), st_.SelectedKind, st_.SelectedIndex));
    RefreshTab(st_.CurrentTab);
}

void Editor::frameDoubleClick() {
    if (st_.SelectedKind == KindImage) {
        view_.runFileCommand(EditorView::FileCommand::ImageFile);
    } else if (st_.SelectedKind == KindText && st_.SelectedIndex >= 0 &&
               st_.SelectedIndex <= MaxTexts) {
        // Filling the box counts as a change: opening the editor already marks the document.
        view_.openInPlaceEditor(st_.Frame, doc_.Texts[st_.SelectedIndex].Text.text());
        inPlaceTextChanged();
    }
}

void Editor::handleMouseDown(int, IntPoint p) {
    recordPending();
    st_.Sizing = true;
    st_.SizeRect = st_.Frame;
    st_.CursorDown = p;
}

void Editor::handleMouseMove(int handle, IntPoint p) {
    if (!st_.Sizing)
        return;
    IntRect r = ResizeByHandle(handle, st_.SizeRect, p.x - st_.CursorDown.x, p.y - st_.CursorDown.y,
                               doc_.Header.FrameWidth, doc_.Header.FrameHeight);
    moveAdd(r);
    RefreshData();
}

void Editor::handleMouseUp(int) {
    st_.Sizing = false;
    RefreshData();
    recordChange(StepName(QStringLiteral("Resize"), st_.SelectedKind, st_.SelectedIndex));
    RefreshTab(st_.CurrentTab);
}

} // namespace zentor
