#pragma once
// The record classes Tablas, Campos and DatosTabla: plain fields. A record that a print job handed out is the
// job's own: what the host writes into it later is what is printed.

#include <memory>

#include "api/typelib/QmModImp3.h"
#include "api/typelib/definition.h"
#include "automation/automation_object.h"
#include "data/print_job.h"

namespace qm::api {

class Tablas final : public automation::AutomationObject<Qm_Modelo_Impresion3::_Tablas, kTablasFace> {
 public:
  explicit Tablas(std::shared_ptr<data::Table> table = std::make_shared<data::Table>())
      : table_(std::move(table)) {}

  QM_FIELD(BSTR, Tabla, table_->tabla)

 private:
  std::shared_ptr<data::Table> table_;
};

class Campos final : public automation::AutomationObject<Qm_Modelo_Impresion3::_Campos, kCamposFace> {
 public:
  explicit Campos(std::shared_ptr<data::Field> field = std::make_shared<data::Field>())
      : field_(std::move(field)) {}

  QM_FIELD(BSTR, Campo, field_->campo)
  QM_FIELD(BSTR, Valor, field_->valor)

 private:
  std::shared_ptr<data::Field> field_;
};

class DatosTabla final
    : public automation::AutomationObject<Qm_Modelo_Impresion3::_DatosTabla, kDatosTablaFace> {
 public:
  QM_FIELD(BSTR, Tabla, cell_.tabla)
  QM_FIELD(BSTR, Campo, cell_.campo)
  QM_FIELD(BSTR, Valor, cell_.valor)
  QM_FIELD(SHORT, Tipo, cell_.tipo)

 private:
  data::Cell cell_;
};

}  // namespace qm::api
