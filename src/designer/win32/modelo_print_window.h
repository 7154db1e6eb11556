#pragma once
// The window ModeloPrint: its messages go to the presenter, what the presenter holds is shown. No decision
// is taken here.

#include <exception>
#include <optional>

#include "designer/win32/form_controls.h"
#include "designer/win32/icons.h"
#include "designer/win32/modal.h"
#include "designer/win32/page_view.h"

namespace qm::designer::win32 {

class ModeloPrintWindow final : public Window, public View, public ModalWindow {
 public:
  static constexpr wchar_t kClassName[] = L"ModeloPrint";

  // Hidden, and owned by no window of the host.
  ModeloPrintWindow(const Environment& environment, const data::PickerMenus& menus,
                    std::int16_t numeroModelo);
  ~ModeloPrintWindow() override = default;

  void Open();  // Form_Load, and shows it

  void LayoutChanged(const Layout& before, const Layout& after) override;
  void MarksChanged() override;
  void PlaceChanged() override;
  void ShowReadout(std::u16string_view text) override;
  void ShowPopUp(PopUp menu) override;
  void SelectModel(int position) override;
  void ShowPrinters(const std::vector<std::u16string>& names, int selected) override;
  void ShowProperties(FieldProperties& properties) override;
  void Unload() override;

  [[nodiscard]] bool Closed() const override { return closed_; }
  bool Translate(MSG& message) override;
  bool Idle() override;
  void ProgramEnds() override;

 protected:
  Answer Receive(UINT message, WPARAM wide, LPARAM parameter) override;
  void Failed() noexcept override;

 private:
  struct ControlEvent;

  Answer OnCommand(WPARAM, LPARAM);
  Answer OnSize(WPARAM, LPARAM);
  Answer OnGetMinMaxInfo(WPARAM, LPARAM);
  Answer OnEraseBackground(WPARAM, LPARAM);
  Answer OnDrawItem(WPARAM, LPARAM);
  Answer OnScroll(WPARAM, LPARAM);
  Answer OnActivate(WPARAM, LPARAM);
  Answer OnSetFocus(WPARAM, LPARAM);
  Answer OnNextControl(WPARAM, LPARAM);
  Answer OnContextMenu(WPARAM, LPARAM);
  Answer OnDpiChanged(WPARAM, LPARAM);
  Answer OnClose(WPARAM, LPARAM);
  Answer OnQueryEndSession(WPARAM, LPARAM) { return TRUE; }
  Answer OnEndSession(WPARAM, LPARAM);
  Answer OnFailure(WPARAM, LPARAM);

  void ModelSelected();
  void PrinterSelected();
  void AnchoChanged() { presenter_.Ancho_Change(controls_.TextOf(kAncho)); }
  void AltoChanged() { presenter_.Alto_Change(controls_.TextOf(kAlto)); }
  void CopiesSelected();
  void EtiquetaClicked() { presenter_.ChEsEtiqueta_Click(controls_.Ticked(kEsEtiqueta)); }

  void CreateForm();
  void AdjustForm();
  void ShowScrollBars();
  void TrackMenu(PopUp menu, POINT at);
  void NextPane();
  [[nodiscard]] bool TextHasFocus() const;

  platform::Dialogs& dialogs_;
  ModeloPrint presenter_;
  OwnedIcon icon_;
  OwnedMenu menuBar_;  // until it is the window's
  std::optional<Metrics> metrics_;
  FormControls controls_{nullptr};
  std::optional<PageView> page_;
  HWND focus_ = nullptr;  // of the controls, while another program is in front
  RECT adjustedFor_{};    // the client area for which the controls stand
  int shownModel_ = -1;
  int shownPrinter_ = -1;
  bool closed_ = false;
  bool unloading_ = false;
  bool telling_ = false;
  std::exception_ptr failure_;
};

}  // namespace qm::designer::win32
