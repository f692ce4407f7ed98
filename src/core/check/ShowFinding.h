#pragma once

namespace zentor {

class Editor;
class EditorView;
struct Finding;

// Choosing a finding: its page is shown and its object (or the page itself) selected, as a
// click on the strip and a choice in the object list would. A finding about the whole
// résumé stays on the current page.
void ShowFinding(Editor& editor, EditorView& view, const Finding& finding);

} // namespace zentor
