#include "designer/win32/properties_dialog.h"

#include <cmath>

#include "designer/win32/window.h"
#include "platform/win32/dialog.h"
#include "platform/win32/module.h"

namespace qm::designer::win32 {
namespace {

using platform::win32::Dialog;
using platform::win32::DialogLayout;
using platform::win32::OwnedFont;
using platform::win32::ScreenDc;
using platform::win32::SelectedObject;
using platform::win32::ThisModule;
using platform::win32::Wide;

constexpr int kFuenList = 101;
constexpr int kEstiloList = 102;
constexpr int kTamaño = 103;
constexpr int kTamañoList = 104;
constexpr int kSubrayado = 105;
constexpr int kJustificar = 106;
constexpr int kFormato = 107;
constexpr int kCommand2 = 108;
constexpr int kNombreColor = 109;
constexpr int kTodos = 110;
constexpr int kLbLMen = 111;
constexpr int kNombreFuente = 112;
constexpr int kFirstBox = 120;  // tLeft, tTop, tWidth, tHeight

constexpr std::u16string_view kBoxLabels[FieldProperties::kBoxes] = {
    u"Posición Izquierda", u"Posición superior", u"Anchura", u"Altura"};
constexpr std::u16string_view kNote =
    u"Nota: Para impresoras matriciales se sugiere que se utilizan las fuentes internas de la impresora (las "
    u"que terminan con un numero). Por ejemplo: Roman12";

// In dialog units.
constexpr int kBoxWidth = 66;
constexpr int kListsHeight = 86;
constexpr int kFontsWidth = 100;
constexpr int kStylesWidth = 70;
constexpr int kSizesWidth = 40;
constexpr int kSampleWidth = 200;
constexpr int kSampleHeight = 44;
constexpr int kSwatchWidth = 40;
constexpr int kSwatchHeight = 12;

COLORREF ScreenColor(std::int32_t color) {
  const auto bits = static_cast<std::uint32_t>(color);
  return (bits & 0x80000000) != 0 ? GetSysColor(static_cast<int>(bits & 0xFF)) : bits & 0xFFFFFF;
}

OwnedFont ScreenFont(const FieldFont& font) {
  const ScreenDc screen;
  LOGFONTW description{};
  description.lfHeight = -static_cast<LONG>(
      std::lround(font.size * static_cast<float>(GetDeviceCaps(screen.Get(), LOGPIXELSY)) / 72));
  description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  description.lfItalic = font.italic;
  description.lfUnderline = font.underline;
  description.lfStrikeOut = font.strikethru;
  description.lfCharSet = DEFAULT_CHARSET;
  font.name.copy(reinterpret_cast<char16_t*>(description.lfFaceName), LF_FACESIZE - 1);
  return OwnedFont(CreateFontIndirectW(&description));
}

class PropertiesDialog : public Dialog {
 public:
  explicit PropertiesDialog(FieldProperties& properties)
      : Dialog(Layout(properties)), properties_(properties) {}

 protected:
  void Opened() override;
  void Command(int id, int notification) override;
  std::optional<INT_PTR> Message(UINT message, WPARAM wide, LPARAM parameter) override;

 private:
  struct Event {
    int id;
    int notification;
    void (PropertiesDialog::*handle)();
  };
  static const Event kEvents[];

  static DialogLayout Layout(const FieldProperties& properties);
  static void AddPlace(DialogLayout& layout, const FieldProperties& properties);
  static void AddFont(DialogLayout& layout, const FieldProperties& properties);
  static void AddSample(DialogLayout& layout, const Sample& sample);

  void FuenList_Click() { properties_.FuenList_Click(SelectionOf(kFuenList)); }
  void EstiloList_Click() { properties_.EstiloList_Click(SelectionOf(kEstiloList)); }
  void TamañoList_Click() { properties_.TamañoList_Click(SelectionOf(kTamañoList)); }
  void Tamaño_Change() { properties_.Tamaño_Change(TextOf(kTamaño)); }
  void Subrayado_Click() { properties_.Subrayado_Click(TickedOf(kSubrayado)); }
  void Justificar_Click() { properties_.Justificar_Click(ChoiceOf(kJustificar)); }
  void Formato_Click() { properties_.Formato_Click(ChoiceOf(kFormato)); }
  void Todos_Click() { properties_.Todos_Click(TickedOf(kTodos)); }
  void LbL_Men_Change() { properties_.LbL_Men_Change(TextOf(kLbLMen)); }
  void Command2_Click() { properties_.Command2_Click(); }

  void NameFor(int id, const wchar_t* name) const;
  void ShowValues();
  void ShowSample();
  void DrawSample(HDC dc, RECT area) const;
  void DrawColor(HDC dc, const RECT& area) const;

  FieldProperties& properties_;
  bool showing_ = false;  // what is written into the controls now is no change of the user's
  OwnedFont sampleFont_;
  FieldFont shownFont_;
};

const PropertiesDialog::Event PropertiesDialog::kEvents[] = {
    {kFuenList, LBN_SELCHANGE, &PropertiesDialog::FuenList_Click},
    {kEstiloList, LBN_SELCHANGE, &PropertiesDialog::EstiloList_Click},
    {kTamañoList, LBN_SELCHANGE, &PropertiesDialog::TamañoList_Click},
    {kTamaño, EN_CHANGE, &PropertiesDialog::Tamaño_Change},
    {kSubrayado, BN_CLICKED, &PropertiesDialog::Subrayado_Click},
    {kJustificar, CBN_SELCHANGE, &PropertiesDialog::Justificar_Click},
    {kFormato, CBN_SELCHANGE, &PropertiesDialog::Formato_Click},
    {kTodos, BN_CLICKED, &PropertiesDialog::Todos_Click},
    {kLbLMen, EN_CHANGE, &PropertiesDialog::LbL_Men_Change},
    {kCommand2, BN_CLICKED, &PropertiesDialog::Command2_Click},
};

void PropertiesDialog::AddPlace(DialogLayout& layout, const FieldProperties& properties) {
  layout.BeginGroup(u"Ubicación");
  for (std::size_t row = 0; row < FieldProperties::kBoxes; row += 2) {
    layout.BeginRow();
    for (std::size_t box = row; box < row + 2; ++box) {
      layout.BeginColumn();
      layout.AddLabel(kBoxLabels[box]);
      layout.AddEntry(kFirstBox + static_cast<int>(box), properties.BoxText(box), kBoxWidth);
      layout.End();
    }
    layout.End();
  }
  layout.End();
  layout.AddLabel(u"Justificación:");
  layout.AddChoice(kJustificar, properties.Justificar().entries, properties.Justificar().selected);
  layout.AddLabel(u"Formato:");
  layout.AddChoice(kFormato, properties.Formato().entries, properties.Formato().selected);
}

void PropertiesDialog::AddFont(DialogLayout& layout, const FieldProperties& properties) {
  layout.BeginRow();
  layout.BeginColumn();
  layout.AddLabel(u"Fuente");
  layout.AddNote(kNombreFuente, properties.NombreFuente());
  layout.AddList(kFuenList, properties.FuenList().entries, properties.FuenList().selected, kFontsWidth,
                 kListsHeight);
  layout.End();
  layout.BeginColumn();
  layout.AddLabel(u"Estilo");
  layout.AddList(kEstiloList, properties.EstiloList().entries, properties.EstiloList().selected, kStylesWidth,
                 kListsHeight);
  layout.End();
  layout.BeginColumn();
  layout.AddLabel(u"Tamaño");
  layout.AddEntry(kTamaño, properties.Tamaño(), kSizesWidth);
  layout.AddList(kTamañoList, properties.TamañoList().entries, properties.TamañoList().selected, kSizesWidth,
                 0);
  layout.End();
  layout.End();

  layout.BeginRow();
  layout.AddCheck(kSubrayado, u"Subrayado", properties.Subrayado());
  layout.AddLabel(u"Color....................");
  layout.AddDrawing(kNombreColor, kSwatchWidth, kSwatchHeight);
  layout.AddPush(kCommand2, u"Elegir...");
  layout.End();
}

// A fixed text is typed in the sample; any other is only looked at, in its own colour.
void PropertiesDialog::AddSample(DialogLayout& layout, const Sample& sample) {
  layout.BeginGroup(u"Ejemplo");
  if (sample.enabled)
    layout.AddEntry(kLbLMen, sample.text, kSampleWidth, kSampleHeight);
  else
    layout.AddDrawing(kLbLMen, kSampleWidth, kSampleHeight);
  layout.End();
}

DialogLayout PropertiesDialog::Layout(const FieldProperties& properties) {
  DialogLayout layout(u"Propiedades Avanzadas");
  layout.BeginRow();
  layout.BeginColumn();
  AddPlace(layout, properties);
  layout.End();
  layout.BeginColumn();
  AddFont(layout, properties);
  layout.End();
  layout.End();
  AddSample(layout, properties.LbL_Men());
  layout.AddCheck(kTodos, u"A&plicar tipo de fuentes a todos los campos", properties.Todos());
  layout.AddNote(kNote);
  layout.AddOkAndCancel(u"&Aceptar", u"&Cancelar");
  layout.MakeResizable();
  return layout;
}

void PropertiesDialog::Opened() {
  if (!properties_.LbL_Men().enabled) SetText(kLbLMen, properties_.LbL_Men().text);
  NameFor(kFuenList, L"Fuente");
  NameFor(kTamañoList, L"Tamaño");
  if (properties_.LbL_Men().enabled) NameFor(kLbLMen, L"Ejemplo");
  ShowSample();
}

void PropertiesDialog::Command(int id, int notification) {
  if (showing_) return;
  if (id == IDOK && notification == BN_CLICKED) properties_.AplicaValores();
  if (id == IDOK || id == IDCANCEL) return Dialog::Command(id, notification);
  for (const Event& event : kEvents) {
    if (event.id != id || event.notification != notification) continue;
    (this->*event.handle)();
    ShowValues();
  }
  const auto box = static_cast<std::size_t>(id - kFirstBox);
  if (notification == EN_CHANGE && box < FieldProperties::kBoxes) properties_.Box_Change(box, TextOf(id));
}

// A screen reader names a box or a list by the label right before it. This one, never visible, is for those
// that have something else there.
void PropertiesDialog::NameFor(int id, const wchar_t* name) const {
  const HWND label = CreateWindowExW(0, L"STATIC", name, WS_CHILD | SS_NOPREFIX, 0, 0, 0, 0, Window(),
                                     nullptr, ThisModule(), nullptr);
  const HWND before = GetWindow(ControlOf(id), GW_HWNDPREV);
  if (label && before) SetWindowPos(label, before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// What events change besides the control that was used.
void PropertiesDialog::ShowValues() {
  showing_ = true;
  if (TextOf(kTamaño) != properties_.Tamaño()) SetText(kTamaño, properties_.Tamaño());
  if (SelectionOf(kTamañoList) != properties_.TamañoList().selected)
    SendMessageW(ControlOf(kTamañoList), LB_SETCURSEL, static_cast<WPARAM>(properties_.TamañoList().selected),
                 0);
  if (TextOf(kNombreFuente) != properties_.NombreFuente()) SetText(kNombreFuente, properties_.NombreFuente());
  ShowSample();
  showing_ = false;
}

void PropertiesDialog::ShowSample() {
  const Sample& sample = properties_.LbL_Men();
  if (!sampleFont_ || sample.font != shownFont_) {
    OwnedFont font = ScreenFont(sample.font);
    if (sample.enabled)
      SendMessageW(ControlOf(kLbLMen), WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), TRUE);
    sampleFont_ = std::move(font);
    shownFont_ = sample.font;
  }
  InvalidateRect(ControlOf(kLbLMen), nullptr, TRUE);
  InvalidateRect(ControlOf(kNombreColor), nullptr, TRUE);
}

std::optional<INT_PTR> PropertiesDialog::Message(UINT message, WPARAM wide, LPARAM parameter) {
  if (message == WM_CTLCOLOREDIT && reinterpret_cast<HWND>(parameter) == ControlOf(kLbLMen)) {
    auto* const dc = reinterpret_cast<HDC>(wide);
    SetTextColor(dc, ScreenColor(properties_.NombreColor()));
    SetBkColor(dc, GetSysColor(COLOR_WINDOW));
    return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
  }
  if (message == WM_DRAWITEM) {
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(parameter);
    if (item.CtlID == kNombreColor) DrawColor(item.hDC, item.rcItem);
    if (item.CtlID == kLbLMen) DrawSample(item.hDC, item.rcItem);
    return TRUE;
  }
  return std::nullopt;
}

void PropertiesDialog::DrawSample(HDC dc, RECT area) const {
  FillRect(dc, &area, GetSysColorBrush(COLOR_WINDOW));
  const SelectedObject font(dc, sampleFont_.Get());
  SetTextColor(dc, ScreenColor(properties_.NombreColor()));
  SetBkMode(dc, TRANSPARENT);
  const std::u16string& text = properties_.LbL_Men().text;
  DrawTextW(dc, Wide(text), static_cast<int>(text.size()), &area,
            DT_SINGLELINE | DT_NOPREFIX | DT_CENTER | DT_VCENTER);
  FrameRect(dc, &area, GetSysColorBrush(COLOR_BTNSHADOW));
}

void PropertiesDialog::DrawColor(HDC dc, const RECT& area) const {
  const platform::win32::Owned<platform::win32::GdiObjectRule<HBRUSH>> brush(
      CreateSolidBrush(ScreenColor(properties_.NombreColor())));
  FillRect(dc, &area, brush.Get());
  FrameRect(dc, &area, GetSysColorBrush(COLOR_BTNSHADOW));
}

}  // namespace

void ShowPropertiesDialog(FieldProperties& properties) { (void)PropertiesDialog(properties).Run(); }

}  // namespace qm::designer::win32
