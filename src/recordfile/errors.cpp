#include "recordfile/errors.h"

#include <string>

#include "runtime/error.h"

namespace qm::recordfile {

namespace {

std::u16string_view Text(RecordFileError error) {
  switch (error) {
    case RecordFileError::Foreign:
      return u"No es un archivo de registros: ";
    case RecordFileError::Damaged:
      return u"El archivo de registros está dañado: ";
    case RecordFileError::Newer:
      return u"El archivo de registros es de una versión posterior: ";
    case RecordFileError::NotOpen:
      return u"No hay ningún archivo de registros abierto";
    case RecordFileError::NoRecord:
      return u"No hay ningún registro actual";
    case RecordFileError::Unstored:
      return u"Hay registros sin guardar";
    case RecordFileError::NoKey:
      return u"No hay ninguna clave activa";
    case RecordFileError::ChangedMeanwhile:
      return u"El archivo de registros ha cambiado desde que se abrió: ";
    case RecordFileError::TooLarge:
      return u"El archivo de registros es demasiado grande: ";
  }
  return {};
}

}  // namespace

void Throw(RecordFileError error, std::u16string_view path) {
  throw runtime::RuntimeError(static_cast<int>(error), std::u16string(Text(error)).append(path));
}

}  // namespace qm::recordfile
