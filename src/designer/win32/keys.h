#pragma once
// What keys do: on the page, and anywhere in the designer's window.

#include "designer/modelo_print.h"
#include "platform/win32/wide.h"

namespace qm::designer::win32 {

[[nodiscard]] Modifiers PressedModifiers();

// Each false when the key means nothing there.
bool PressCanvasKey(ModeloPrint& presenter, UINT key, bool repeated);
// Ctrl+S everywhere; undo and redo where no text is being typed.
bool PressWindowKey(ModeloPrint& presenter, UINT key, bool inText);

}  // namespace qm::designer::win32
