#pragma once
// The test print: what lies on the canvas, on paper. Fields print their captions, no values.
// Errors: 482 when the printer cannot be opened or fails.

#include "designer/layout.h"
#include "print/engine.h"

namespace qm::designer {

// On the layout's printer, or the default one where that is not installed.
void PrintTest(const Layout& layout, const print::Environment& environment);

}  // namespace qm::designer
