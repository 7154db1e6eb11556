#include "api/classes.h"

#include "api/composition.h"
#include "api/email.h"
#include "api/print_form.h"
#include "api/records.h"
#include "api/typelib/guids.h"

namespace qm::api {

namespace {

const automation::Creatable kCreatable[] = {
    {kPrintFormClass, []() -> IDispatch* { return new PrintForm(TheComposition()); }},
    {kTablasClass, []() -> IDispatch* { return new Tablas; }},
    {kCamposClass, []() -> IDispatch* { return new Campos; }},
    {kDatosTablaClass, []() -> IDispatch* { return new DatosTabla; }},
    {kEmailClass, []() -> IDispatch* { return new Email(TheComposition()); }},
};

}  // namespace

std::span<const automation::Creatable> CreatableClasses() noexcept { return kCreatable; }

}  // namespace qm::api
