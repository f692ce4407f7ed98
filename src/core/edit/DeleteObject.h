#pragma once

#include "edit/Prompter.h"
#include "model/Document.h"
#include "model/ProcessContext.h"

namespace zentor {

// Asks, then deletes or resets what is selected: the page's picture and icon (kind 0),
// an image or a text (back to a copy of the template, so free again), the user icon
// (kind 3) or the background picture (kind 4, back to the default one). Only Yes changes
// anything; Dirty is left to the caller. Returns true when something was changed.
bool DelObject(Document& doc, int kind, int slot, int currentTab, Prompter& prompter,
               const ProcessContext& ctx);

} // namespace zentor
