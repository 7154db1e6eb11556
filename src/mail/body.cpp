#include "mail/body.h"

#include "runtime/strings.h"

namespace qm::mail {

using runtime::Compare;

std::u16string ComponerCuerpo(std::u16string_view plantilla, std::u16string& texto, bool& sentAsPlainText) {
  if (plantilla.empty()) return texto;
  texto = runtime::Replace(texto, u"\r\n", u"<BR>");
  std::u16string body = runtime::Replace(plantilla, u"<TEXTO>", texto, Compare::Text);
  body = runtime::Replace(body, u"&lt;TEXTO&gt;", texto, Compare::Text);  // as HTML editors write the marker
  sentAsPlainText = !texto.empty() && runtime::InStr(body, texto, 1, Compare::Text) == 0;
  return sentAsPlainText ? texto : body;
}

}  // namespace qm::mail
