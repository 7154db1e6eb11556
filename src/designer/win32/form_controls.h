#pragma once
// The standard controls of the designer's window, and where they stand: Toolbar1, Frame1 with the page
// settings, the scroll bars, and between them the place of the viewport.
// Units: pixels, but for the values of the scroll bars.

#include <string>
#include <string_view>
#include <vector>

#include "designer/win32/icons.h"
#include "designer/win32/menus.h"
#include "designer/win32/metrics.h"

namespace qm::designer::win32 {

// Ids of controls; the buttons have those of their commands.
enum ControlId : int {
  kModelos = 200,  // Toolbar1, list 0
  kImpresoras,     // list 1
  kAncho,
  kAlto,
  kListCopias,
  kEsEtiqueta,
  kLabPos,
  kBarHor,
  kBarVer,
  kFrame1,
  kBasePin,
};

class FormControls {
 public:
  explicit FormControls(HWND form) : form_(form) {}

  void Create(const Metrics& metrics);
  // Adds the viewport to those that Place moves; before the scroll bars in the order of the Tab key.
  void AddViewport(HWND viewport);
  void SetMetrics(const Metrics& metrics);  // fonts; Place comes next
  // AdjustForm, for the size of the client area.
  void Place(const Metrics& metrics, int width, int height);
  // The smallest client area in which nothing is cut and the viewport keeps its least size.
  [[nodiscard]] SIZE Least(const Metrics& metrics) const;

  [[nodiscard]] HWND Get(int id) const { return GetDlgItem(form_, id); }
  [[nodiscard]] std::u16string TextOf(int id) const;
  void SetText(int id, std::u16string_view text);  // nothing when it is that already
  [[nodiscard]] int SelectionOf(int id) const;
  void Select(int id, int position);
  void SelectText(int id, std::u16string_view text);  // none where there is no such entry
  void FillList(int id, const std::vector<std::u16string>& entries);
  [[nodiscard]] bool IsOpen(int id) const;  // a drop-down list
  [[nodiscard]] bool Ticked(int id) const;
  void Tick(int id, bool ticked);

 private:
  struct Standing;  // a control and how wide it is
  HWND Add(const wchar_t* windowClass, const wchar_t* text, DWORD style, int id);
  void AddTip(int id, const wchar_t* text);
  [[nodiscard]] std::vector<Standing> ToolbarRow(const Metrics& metrics) const;
  [[nodiscard]] std::vector<Standing> SettingsRow(const Metrics& metrics) const;
  [[nodiscard]] static int WidthOfRow(const std::vector<Standing>& row);
  void PlaceRow(const std::vector<Standing>& row, int x, int y, int height, const Metrics& metrics) const;

  HWND form_;
  HWND tips_ = nullptr;
  OwnedIcon dots_;
  std::vector<HWND> labels_;  // in the order in which they were added
};

}  // namespace qm::designer::win32
