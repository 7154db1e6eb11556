#include "data/picker_menus.h"

#include "data/definition_file.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

namespace qm::data {
namespace {

void MoveOn(std::int16_t& counter) { counter = runtime::CInt(counter + 1.0); }

// Always the first menu, whatever the counter held.
void FillFieldMenu(PickerMenus& menus, PrintJob& job) {
  if (job.fields.empty()) return;
  MoveOn(job.menuCounter);
  PickerMenu& menu = menus[0];
  menu.caption = u"Campos disponibles";
  menu.visible = true;
  menu.items.clear();
  for (const auto& field : job.fields) menu.items.push_back(field->campo);
}

// The definition is read first: a file that does not exist is there afterwards, empty, also for a table
// that gets no menu any more.
void FillTableMenu(PickerMenus& menus, PrintJob& job, const std::u16string& tabla, platform::Files& files) {
  const Definition definition = ReadDefinition(files, tabla);
  const auto index = static_cast<std::size_t>(job.menuCounter);
  if (index >= menus.size()) throw runtime::RuntimeError(runtime::ErrorNumber::MissingControlElement);
  PickerMenu& menu = menus[index];
  menu.caption = definition.title;
  menu.visible = true;
  if (!definition.names.empty()) menu.items.clear();
  for (const std::u16string& name : definition.names) menu.items.push_back(CellName(name, TableTag(tabla)));
  MoveOn(job.menuCounter);
}

}  // namespace

PickerMenus FillPickerMenus(PrintJob& job, platform::Files& files) {
  PickerMenus menus;
  FillFieldMenu(menus, job);
  for (const auto& table : job.tables) FillTableMenu(menus, job, table->tabla, files);
  return menus;
}

}  // namespace qm::data
