#include "designer/win32/keys.h"

#include <optional>

namespace qm::designer::win32 {
namespace {

enum class Where { Canvas, NotInText, Anywhere };

struct Key {
  UINT key;
  bool control;
  Where where;
  void (*act)(ModeloPrint&);
};

constexpr Key kKeys[] = {
    {'S', true, Where::Anywhere, [](ModeloPrint& presenter) { presenter.Grabar(); }},
    {'Z', true, Where::NotInText, [](ModeloPrint& presenter) { presenter.Undo(); }},
    {'Y', true, Where::NotInText, [](ModeloPrint& presenter) { presenter.Redo(); }},
    {'C', true, Where::Canvas, [](ModeloPrint& presenter) { presenter.CopyField(); }},
    {'V', true, Where::Canvas, [](ModeloPrint& presenter) { presenter.PasteField(); }},
    {'0', true, Where::Canvas, [](ModeloPrint& presenter) { presenter.TheCanvas().ZoomToActualSize(); }},
    {VK_DELETE, false, Where::Canvas, [](ModeloPrint& presenter) { presenter.v_Eliminar_Click(); }},
    {VK_RETURN, false, Where::Canvas, [](ModeloPrint& presenter) { presenter.V_Propiedades_Click(); }},
    {VK_TAB, false, Where::Canvas,
     [](ModeloPrint& presenter) { presenter.TheCanvas().NextField(PressedModifiers().shift); }},
};

std::optional<Direction> DirectionOf(UINT key) {
  switch (key) {
    case VK_LEFT:
      return Direction::Left;
    case VK_RIGHT:
      return Direction::Right;
    case VK_UP:
      return Direction::Up;
    case VK_DOWN:
      return Direction::Down;
    default:
      return std::nullopt;
  }
}

bool Press(ModeloPrint& presenter, UINT pressed, bool (*allowed)(Where)) {
  if (GetKeyState(VK_MENU) < 0) return false;
  for (const Key& key : kKeys) {
    if (key.key != pressed || key.control != PressedModifiers().control || !allowed(key.where)) continue;
    key.act(presenter);
    return true;
  }
  return false;
}

}  // namespace

Modifiers PressedModifiers() {
  return {.shift = GetKeyState(VK_SHIFT) < 0, .control = GetKeyState(VK_CONTROL) < 0};
}

bool PressCanvasKey(ModeloPrint& presenter, UINT key, bool repeated) {
  if (const auto direction = DirectionOf(key)) {
    presenter.TheCanvas().ArrowKey(*direction, PressedModifiers(), repeated);
    return true;
  }
  return Press(presenter, key, [](Where) { return true; });
}

bool PressWindowKey(ModeloPrint& presenter, UINT key, bool inText) {
  return inText ? Press(presenter, key, [](Where where) { return where == Where::Anywhere; })
                : Press(presenter, key, [](Where where) { return where != Where::Canvas; });
}

}  // namespace qm::designer::win32
