// What a subject, a name, a path or a folder of a message cannot do.

#include <gtest/gtest.h>

#include "mail/email_message.h"
#include "mail/print_job_mail.h"
#include "tests/error_of.h"
#include "tests/mail/mail_world.h"

namespace qm::mail {
namespace {

constexpr std::u16string_view kOutbox = u"C:\\Correo\\Bandeja de Salida\\";

class HostileMessages : public testing::Test, protected MailWorld {
 protected:
  HostileMessages() {
    AddProfile({{ProfileField::Name, u"Oficina"},
                {ProfileField::Password, u"MuySecreta1"},
                {ProfileField::RutaEmail, u"C:\\Correo\\"}});
    message.emailDestinatario = u"jose@cliente.es";
    message.nombreDestinatario = u"José";
    message.tema = u"Factura";
  }

  std::u16string Send() { return Enviar(message, environment); }
  // The archive's name within the outbox.
  std::u16string ArchiveName() {
    EXPECT_TRUE(archiver.archive.starts_with(kOutbox));
    return archiver.archive.substr(kOutbox.size());
  }

  EmailMessage message;
};

TEST_F(HostileMessages, CannotLeaveTheOutboxBySubjectOrName) {
  for (const std::u16string_view text : {u"..\\..\\Windows\\x", u"../../x", u"C:\\x", u"\"a\" /b", u"CON",
                                         u"NUL", u"a\r\nb\x01", u"..", u"."}) {
    message.tema = text;
    message.nombreDestinatario = text;
    EXPECT_EQ(Send(), u"");
    EXPECT_EQ(ArchiveName().find_first_of(u"\\/:\"\r\n\x01"), std::u16string::npos);
    EXPECT_TRUE(ArchiveName().starts_with(u"2015-12-31·15 07·"));
  }
}

TEST_F(HostileMessages, WithANameThatIsTooLongAreRefusedWhole) {
  for (const std::size_t length : {300u, 100000u}) {
    message.tema = std::u16string(length, u'x');
    EXPECT_EQ(Send(), u"ERROR Nombre o número de archivo incorrecto");
    EXPECT_TRUE(NothingWasHandedOff());
    EXPECT_TRUE(folders.made.empty());
  }
  message.tema = u"Factura";
  message.nombreDestinatario = std::u16string(300, u'ñ');
  EXPECT_EQ(Send(), u"ERROR Nombre o número de archivo incorrecto");
  EXPECT_TRUE(NothingWasHandedOff());
}

TEST_F(HostileMessages, WithTheLongestNameThatFitsAreSent) {
  const std::size_t others = std::u16string_view(u"2015-12-31·15 07··José·.zip").size();
  message.tema = std::u16string(240 - others, u'x');
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(ArchiveName().size(), 240u);
  message.tema += u'x';
  EXPECT_NE(Send(), u"");
}

TEST_F(HostileMessages, CannotBreakOutOfTheSendersQuotes) {
  for (const std::u16string_view folder : {u"C:\\Correo\" /otra \"", u"C:\\Cor\nreo\\", u"C:\\a＂b\\"}) {
    AddProfile(
        {{ProfileField::Name, std::u16string(folder)}, {ProfileField::RutaEmail, std::u16string(folder)}});
    message.perfil = folder;
    EXPECT_EQ(Send(), u"ERROR Nombre o número de archivo incorrecto");
    EXPECT_TRUE(NothingWasHandedOff());
  }
}

TEST_F(HostileMessages, CannotReplaceTheRequestOrTheBodyByAnAttachment) {
  for (const std::u16string_view path :
       {u"C:\\a\\email.txt", u"C:\\a\\Email.Htm", u"EMAIL.TXT", u"C:/a/EMAIL.HTM", u"C:EMAIL.TXT",
        u"C:\\a\\EMAIL.TXT. .", u"C:\\a\\EMAIL.TXT::$DATA", u"C:\\a\\x.pdf;EMAIL.TXT"}) {
    message.archivosAdjuntos = path;
    files.contents[std::u16string(path)] = "otra cosa";
    EXPECT_EQ(Send(), u"ERROR Nombre o número de archivo incorrecto");
    EXPECT_TRUE(NothingWasHandedOff());
  }
}

TEST_F(HostileMessages, CannotReplaceTheRequestByAFileThatTheirTextRefersTo) {
  files.contents[u"C:\\html\\carta.htm"] = "<TEXTO><img src=\"otra/email.txt\">";
  files.contents[u"C:\\html\\OTRA\\EMAIL.TXT"] = "otra cosa";
  message.archivoHTML = u"C:\\html\\carta.htm";
  EXPECT_EQ(Send(), u"ERROR Nombre o número de archivo incorrecto");
  EXPECT_TRUE(NothingWasHandedOff());
}

TEST_F(HostileMessages, CannotNameFilesElsewhereBehindASemicolon) {
  files.contents[u"C:\\html\\carta.htm"] = "<TEXTO><img src=\"a;C:/secreto.txt\"><img src=\"b%3Botro.txt\">";
  files.contents[u"C:\\SECRETO.TXT"] = "secreto";
  files.contents[u"OTRO.TXT"] = "de la carpeta actual";
  message.archivoHTML = u"C:\\html\\carta.htm";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(Line("Attachments"), "");
  EXPECT_EQ(archiver.runs.size(), 1u);
}

TEST_F(HostileMessages, StartNoSenderOfTheCurrentDrive) {
  folders.special.erase(43);
  EXPECT_EQ(Send(), u"ERROR Archivo no encontrado");
  EXPECT_TRUE(processes.started.empty());
  EXPECT_TRUE(LooseFilesAreGone());
}

TEST_F(HostileMessages, NeverReadFromADevice) {
  files.contents[u"C:\\html\\carta.htm"] = "<TEXTO><img src=\"CON\"><img src=\"nul.gif\">";
  files.contents[u"C:\\html\\CON"] = "teclado";
  files.contents[u"C:\\html\\NUL.GIF"] = "nada";
  message.archivoHTML = u"C:\\html\\carta.htm";
  message.archivosAdjuntos = u"CON;C:\\a\\NUL;\\\\.\\PhysicalDrive0;C:\\a\\x\n.pdf";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(archiver.runs.size(), 1u);

  message.archivoHTML = u"C:\\html\\CON";
  message.archivosAdjuntos.clear();
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(PackedBody(), "");
}

TEST_F(HostileMessages, HaveTheirAttachmentsPackedByFullPaths) {
  message.archivosAdjuntos = u"..\\..\\secreto.txt;C:\\a\\..\\b\\x.pdf";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(Line("Attachments"), "secreto.txt;x.pdf;");
}

TEST_F(HostileMessages, CannotAddLinesToTheRequest) {
  message.tema = u"Hola\r\nSMTPHost=otro.es";
  message.emailDestinatario = u"jose@cliente.es\nBCC=x";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(Line("Tema"), "Hola  SMTPHost=otro.es");
  EXPECT_EQ(Line("SMTPHost"), "");
  EXPECT_EQ(Line("BCC"), "(no line)");
}

TEST_F(HostileMessages, ShowThePasswordNowhereInPlainText) {
  message.archivosAdjuntos = u"C:\\a\\x.pdf";
  const std::string plain = "MuySecreta1";
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(Send(), u"");
    message.archivosAdjuntos = u"C:\\a\\x.pdf";
  }
  for (const auto& written : files.replacements) {
    if (written.path == kProfilePath) continue;
    EXPECT_EQ(written.bytes.find(plain), std::string::npos);
  }
  for (const auto& start : processes.started)
    EXPECT_EQ(start.arguments.find(u"Secreta"), std::u16string::npos);
}

TEST_F(HostileMessages, OfPrintJobsAreRefusedWholeAsWell) {
  job.mail.email = u"jose@cliente.es";
  job.mail.rutaEmail = u"C:\\Correo\"\\";
  std::u16string folder = u"C:\\Docs\\";
  EXPECT_EQ(tests::ErrorOf([&] { return EmailModelo(job, environment, folder, u"x.doc"), 0; }), 50103);
  EXPECT_TRUE(NothingWasHandedOff());
  job.mail.rutaEmail = u"C:\\Correo\\";
  EXPECT_EQ(tests::ErrorOf([&] { return EmailModelo(job, environment, folder, u"email.txt"), 0; }), 50103);
  EXPECT_TRUE(NothingWasHandedOff());
}

}  // namespace
}  // namespace qm::mail
