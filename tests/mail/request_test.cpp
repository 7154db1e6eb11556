#include "mail/request.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qm::mail {
namespace {

Request Example() {
  Request request;
  request.nombreDestinatario = u" José Muñoz ";
  request.emailDestinatario = u" jose@correo.es ";
  request.tema = u" Factura ";
  request.attachments = u"x.pdf;y.doc;";
  request.htmDir = u"C:\\html\\";
  request.receipt = true;
  request.emailCC = u"copia@correo.es";
  request.desCC = u"Copia";
  request.from = u"ana@correo.es";
  request.fromDisplayName = u"Ana";
  request.smtpHost = u"smtp.correo.es";
  request.smtpPort = u"465";
  request.ssl = true;
  request.password = u"3kA9";
  request.userName = u"ana";
  request.useAuthentication = true;
  request.pop3Host = u"pop.correo.es";
  return request;
}

TEST(RequestFile, OfAMessageWithAProfileHasItsLinesInThatOrder) {
  EXPECT_EQ(RequestBytes(Example(), LineOrder::Email, runtime::Locale::Spanish()),
            "NombreDestinatario=Jos\xE9 Mu\xF1oz\r\n"
            "emailDestinatario=jose@correo.es\r\n"
            "Tema= Factura \r\n"
            "Attachments=x.pdf;y.doc;\r\n"
            "HTMText=Email.htm\r\n"
            "HTMDir=C:\\html\\\r\n"
            "Receipt=Verdadero\r\n"
            "EmailCC=copia@correo.es\r\n"
            "DesCC=Copia\r\n"
            "From=ana@correo.es\r\n"
            "FromDisplayName=Ana\r\n"
            "SMTPHost=smtp.correo.es\r\n"
            "SMTPPort=465\r\n"
            "SSL=Verdadero\r\n"
            "Password=3kA9\r\n"
            "UserName=ana\r\n"
            "UseAuthentication=Verdadero\r\n"
            "UsePopAuthentication=Falso\r\n"
            "PoP3Host=pop.correo.es\r\n");
}

TEST(RequestFile, OfAPrintJobHasItsLinesInAnotherOrder) {
  EXPECT_EQ(RequestBytes(Example(), LineOrder::PrintForm, runtime::Locale::English()),
            "Tema= Factura \r\n"
            "Attachments=x.pdf;y.doc;\r\n"
            "HTMText=Email.htm\r\n"
            "HTMDir=C:\\html\\\r\n"
            "SMTPHost=smtp.correo.es\r\n"
            "SMTPPort=465\r\n"
            "SSL=True\r\n"
            "NombreDestinatario=Jos\xE9 Mu\xF1oz\r\n"
            "emailDestinatario=jose@correo.es\r\n"
            "From=ana@correo.es\r\n"
            "FromDisplayName=Ana\r\n"
            "EmailCC=copia@correo.es\r\n"
            "DesCC=Copia\r\n"
            "Password=3kA9\r\n"
            "UserName=ana\r\n"
            "UseAuthentication=True\r\n"
            "UsePopAuthentication=False\r\n"
            "PoP3Host=pop.correo.es\r\n"
            "Receipt=True\r\n");
}

TEST(RequestFile, HasBlanksForLineEndsInsideValues) {
  Request request;
  request.tema = u"Hola\r\nSMTPHost=otro.es\nPassword=x\r";
  const std::string bytes = RequestBytes(request, LineOrder::Email, runtime::Locale::Spanish());
  EXPECT_NE(bytes.find("\r\nTema=Hola  SMTPHost=otro.es Password=x \r\n"), std::string::npos);
  EXPECT_EQ(std::ranges::count(bytes, '\n'), 19);
}

TEST(RequestFile, KeepsCharactersThatNeedNoQuotingElsewhere) {
  Request request;
  request.tema = u"a=b;\"c\"%d €";
  EXPECT_NE(
      RequestBytes(request, LineOrder::Email, runtime::Locale::Spanish()).find("Tema=a=b;\"c\"%d \x80\r\n"),
      std::string::npos);
}

}  // namespace
}  // namespace qm::mail
