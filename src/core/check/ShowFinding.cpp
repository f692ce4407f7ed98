#include "check/ShowFinding.h"

#include "check/Finding.h"
#include "edit/Editor.h"
#include "edit/ObjectList.h"
#include "model/TabMap.h"

namespace zentor {

void ShowFinding(Editor& editor, EditorView& view, const Finding& finding) {
    if (finding.tab < 0 || finding.tab > MaxTab)
        return;
    editor.commitInPlaceEdit();
    view.selectStrip(GetTabIndex(finding.tab));
    editor.stripClicked();
    const bool object = finding.objectKind == KindImage || finding.objectKind == KindText;
    const int row = object ? FindObjectRow(editor.state().ObjectMap,
                                           ObjectRef{finding.objectKind, finding.slot})
                           : 0;
    if (row < 0)
        return;
    view.setCurrentRow(row);
    editor.chooseRow(row);
}

} // namespace zentor
