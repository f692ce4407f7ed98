#pragma once

#include "edit/Geometry.h"
#include "edit/ObjectList.h"
#include "render/IconRing.h"

#include <QStringList>

#include <array>

namespace zentor {

// The window's editing state beside the document (which holds Dirty and ScriptPath).
struct EditorState {
    int CurrentTab = 0;    // 0 profile page, 1..7 content pages, 8 slide show
    int SelectedKind = 0;  // an ObjectKind
    int SelectedIndex = 0; // slot in Images or Texts for kinds 1 and 2
    QStringList Rows;      // the object list as shown
    std::array<ObjectRef, ObjectMapRows> ObjectMap{};
    int CurrentRow = -1; // the list's selected row, -1 none
    int HoverIcon = 0;   // ring icon under the pointer on the profile page, 0 none
    IconRectTable IconRects{};
    bool Busy = false; // while an object is being loaded into the panel

    IntRect Frame{100, 100, 100, 100}; // the selection frame
    bool FrameVisible = false;

    // A move is under way exactly while the pressed control shows the move pointer.
    bool WorkspaceMoving = false;
    bool FrameMoving = false;
    bool Sizing = false;
    IntPoint CursorDown; // where the move or resize began
    int DragLeft = 0;    // the frame's Left and Top when a move began
    int DragTop = 0;
    IntRect SizeRect; // the frame when a resize began
};

} // namespace zentor
