#include "edit/Editor.h"

#include "edit/DragGeometry.h"
#include "edit/HitTest.h"
#include "edit/ObjectList.h"
#include "edit/TabNavigation.h"
#include "edit/WorkspaceLayout.h"
#include "io/ScriptFile.h"

#include <QFileInfo>

#include <utility>

namespace zentor {

Editor::Editor(Document& doc, const ProcessContext& ctx, EditorView& view, Prompter& prompter)
    : doc_(doc), ctx_(ctx), view_(view), prompter_(prompter) {}

void Editor::formLoad() {
    // Centred now rather than at the first viewport resize: the same picture for the user.
    sizeAndCentreWorkspace();
    IntRect start{100, 100, 100, 100};
    moveAdd(start);
    st_.CurrentTab = 0;
    ShowAdd(false);
    bool loaded = false;
    if (!ctx_.CommandLine.isEmpty()) {
        if (!QFileInfo::exists(ctx_.CommandLine)) {
            // A new project named on the command line: the default document, saved there by
            // the first Save. Nothing is created until then.
            doc_.ScriptPath = QFileInfo(ctx_.CommandLine).absoluteFilePath();
        } else {
            // A file that cannot be read leaves the default document, silently.
            if (LoadScript(doc_, ctx_.CommandLine).opened) {
                view_.projectFileUsed(doc_.ScriptPath);
                loaded = true;
            }
            sizeAndCentreWorkspace();
        }
    }
    applyStripCaptions();
    LoadTab(st_.CurrentTab);
    doc_.Dirty = false;
    resetHistory();
    if (loaded && offerMissingMedia())
        RefreshTab(st_.CurrentTab);
    view_.setStatusText(status_.isEmpty() ? QStringLiteral("Ready") : std::exchange(status_, {}));
}

bool Editor::queryUnload() {
    // Asked whatever the dirty flag says. After Yes the window closes only when the work
    // was saved: a cancelled save dialog or a save the disk refused keeps it open, since
    // closing then would lose the work.
    const Prompter::Answer a = prompter_.ask(
        QStringLiteral("Exit Vitara Zentor"),
        QStringLiteral("Please save the work before exit. Exit with save?"),
        Prompter::Buttons::YesNoCancel, Prompter::Icon::Question, Prompter::Answer::No);
    if (a == Prompter::Answer::Yes)
        return saveForQuestion();
    return a == Prompter::Answer::No;
}

void Editor::fillPage(int tab) {
    if (tab == ProfileTab)
        st_.IconRects = IconRects(QSize(doc_.Header.FrameWidth, doc_.Header.FrameHeight));
    ObjectList list = BuildObjectList(doc_, tab);
    st_.Rows = list.rows;
    st_.ObjectMap = list.map;
    // The list starts with no row chosen (a widget may pick one by itself on filling).
    st_.CurrentRow = -1;
    view_.setObjectRows(st_.Rows);
    view_.setCurrentRow(-1);
}

void Editor::RefreshTab(int tab) {
    if (st_.Busy)
        return;
    fillPage(tab);
    if (st_.Rows.size() == 1) {
        selectRow(0);
    } else {
        // A match past the last row (unused rows hold (0, 0)) selects nothing, as before.
        const int r = FindObjectRow(st_.ObjectMap, {st_.SelectedKind, st_.SelectedIndex});
        if (r >= 0 && r < st_.Rows.size())
            selectRow(r);
    }
    view_.paintWorkspace(tab, st_.HoverIcon);
}

void Editor::LoadTab(int tab) {
    if (st_.Busy)
        return;
    fillPage(tab);
    if (!st_.Rows.isEmpty())
        selectRow(0);
    view_.paintWorkspace(tab, st_.HoverIcon);
}

void Editor::selectRow(int row) {
    st_.CurrentRow = row;
    view_.setCurrentRow(row);
    chooseRow(row);
}

void Editor::chooseRow(int row) {
    if (st_.Busy || row < 0 || row >= st_.Rows.size() || row >= ObjectMapRows)
        return;
    st_.CurrentRow = row;
    st_.SelectedKind = st_.ObjectMap[row].kind;
    st_.SelectedIndex = st_.ObjectMap[row].slot;
    view_.showPropertyPane(st_.SelectedKind);
    view_.setPropertyCaption(QStringLiteral("Propertity - ") + st_.Rows[row]);
    ShowAdd(st_.SelectedKind == KindImage || st_.SelectedKind == KindText);
    Select_Object(st_.SelectedKind);
}

void Editor::Select_Object(int kind) {
    st_.Busy = true;
    switch (kind) {
    case KindTab:
        view_.loadObject(kind, st_.CurrentTab);
        break;
    case KindImage:
    case KindText: {
        const int i = st_.SelectedIndex;
        const bool image = kind == KindImage;
        if (i < 0 || i > (image ? MaxImages : MaxTexts))
            break;
        view_.loadObject(kind, i);
        // The frame goes over the object; the record itself is not clamped here.
        IntRect r = image ? IntRect{doc_.Images[i].Left, doc_.Images[i].Top, doc_.Images[i].Width,
                                    doc_.Images[i].Height}
                          : IntRect{doc_.Texts[i].Left, doc_.Texts[i].Top, doc_.Texts[i].Width,
                                    doc_.Texts[i].Height};
        moveAdd(r);
        break;
    }
    case KindProfile:
    case KindSlideShow:
        view_.loadObject(kind, 1);
        break;
    default:
        break;
    }
    st_.Busy = false;
}

void Editor::ShowAdd(bool show) {
    st_.FrameVisible = show;
    view_.showSelectionFrame(show);
}

void Editor::moveAdd(IntRect& r) {
    MoveAdd(r, doc_.Header.FrameWidth, doc_.Header.FrameHeight);
    st_.Frame = r;
    view_.placeSelectionFrame(r, HandlePositions(r));
}

void Editor::RefreshData() {
    const int i = st_.SelectedIndex;
    const IntRect& f = st_.Frame;
    if (st_.SelectedKind == KindImage && i >= 0 && i <= MaxImages) {
        ImageElement& e = doc_.Images[i];
        e.Left = f.Left, e.Top = f.Top, e.Width = f.Width, e.Height = f.Height;
    } else if (st_.SelectedKind == KindText && i >= 0 && i <= MaxTexts) {
        TextElement& e = doc_.Texts[i];
        e.Left = f.Left, e.Top = f.Top, e.Width = f.Width, e.Height = f.Height;
    } else {
        return;
    }
    view_.showObjectGeometry(st_.SelectedKind, f);
}

void Editor::stripClicked() {
    // An open text edit belongs to the page it was started on.
    commitInPlaceEdit();
    st_.CurrentTab = GetSelectedIndex(view_.selectedStrip(), st_.CurrentTab);
    LoadTab(st_.CurrentTab);
}

void Editor::commitInPlaceEdit() {
    const std::optional<QString> text = view_.inPlaceText();
    if (!text)
        return;
    const int i = st_.SelectedIndex;
    if (i >= 0 && i <= MaxTexts)
        doc_.Texts[i].Text = *text;
    recordChange(StepName(QStringLiteral("Edit"), KindText, i));
    view_.closeInPlaceEditor(*text);
    RefreshTab(st_.CurrentTab);
}

void Editor::applyStripCaptions() {
    for (int i = 1; i <= 8; ++i) {
        TabRecord& tab = doc_.Tabs[8 - i];
        tab.Name = tab.Name.trimmed();
        view_.setStripCaption(i + 1, tab.Name.text());
    }
}

void Editor::frameSizeChanged() {
    sizeAndCentreWorkspace();
    RefreshTab(st_.CurrentTab);
}

void Editor::sizeAndCentreWorkspace() {
    const int w = doc_.Header.FrameWidth;
    const int h = doc_.Header.FrameHeight;
    const IntPoint vp = view_.viewportSize();
    view_.placeWorkspace({CentreOffset(vp.x, w), CentreOffset(vp.y, h), w, h});
}

} // namespace zentor
