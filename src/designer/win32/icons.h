#pragma once
// The icons of the buttons, drawn here at whatever size the screen asks for.
// Units: pixels.

#include "designer/win32/bitmap32.h"

namespace qm::designer::win32 {

enum class Icon { Grabar, ImprimirPrueba, Papel, Puntos };

// Square; its pixels carry their opacity, as AlphaBlend wants them.
[[nodiscard]] Bitmap32 NewIcon(Icon icon, int side);

struct IconRule : platform::win32::NullHandle<HICON> {
  static void Close(HICON icon) { DestroyIcon(icon); }
};
using OwnedIcon = platform::win32::Owned<IconRule>;

[[nodiscard]] OwnedIcon NewWindowIcon(int side);
// Three dots in the colour of a button's text.
[[nodiscard]] OwnedIcon NewDotsIcon(int side);

}  // namespace qm::designer::win32
