#include "runtime/error.h"

#include <utility>

namespace qm::runtime {
namespace {

struct Description {
  ErrorNumber number;
  std::u16string_view text;
};

constexpr Description kDescriptions[] = {
    {ErrorNumber::InvalidArgument, u"Llamada al procedimiento no válida"},
    {ErrorNumber::Overflow, u"Desbordamiento"},
    {ErrorNumber::OutOfMemory, u"Memoria insuficiente"},
    {ErrorNumber::SubscriptOutOfRange, u"Subíndice fuera de rango"},
    {ErrorNumber::TypeMismatch, u"Error de coincidencia de tipos"},
    {ErrorNumber::FileNotFound, u"Archivo no encontrado"},
    {ErrorNumber::FileAlreadyOpen, u"El archivo ya está abierto"},
    {ErrorNumber::InputOutput, u"Error de E/S de dispositivo"},
    {ErrorNumber::DiskFull, u"Disco lleno"},
    {ErrorNumber::ReadPastEnd, u"La entrada sobrepasó el final del archivo"},
    {ErrorNumber::PermissionDenied, u"Permiso denegado"},
    {ErrorNumber::PathFileAccess, u"Error de acceso a la ruta o al archivo"},
    {ErrorNumber::PathNotFound, u"Ruta de acceso no encontrada"},
    {ErrorNumber::ObjectNotSet, u"Variable de objeto o bloque With no establecido"},
    {ErrorNumber::InvalidUseOfNull, u"Uso no válido de Null"},
    {ErrorNumber::MissingControlElement, u"El elemento de la matriz de controles no existe"},
    {ErrorNumber::FormAlreadyShown, u"El formulario ya se está mostrando; no se puede mostrar como modal"},
    {ErrorNumber::InvalidPicture, u"Imagen no válida"},
    {ErrorNumber::PrinterError, u"Error de impresora"},
};

constexpr std::u16string_view kOtherErrors = u"Error definido por la aplicación o el objeto";

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number)
    : RuntimeError(static_cast<int>(number), std::u16string(DescriptionOf(static_cast<int>(number)))) {}

RuntimeError::RuntimeError(int number, std::u16string description)
    : number_(number), description_(std::move(description)) {}

std::u16string_view DescriptionOf(int number) noexcept {
  for (const Description& each : kDescriptions) {
    if (static_cast<int>(each.number) == number) return each.text;
  }
  return kOtherErrors;
}

}  // namespace qm::runtime
