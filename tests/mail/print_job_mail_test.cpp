#include "mail/print_job_mail.h"

#include <gtest/gtest.h>

#include "runtime/code_page.h"
#include "tests/error_of.h"
#include "tests/mail/mail_world.h"
#include "tests/mail/reversed_password.h"

namespace qm::mail {
namespace {

using tests::ErrorOf;
using tests::ReversedPassword;

class SendingAPrintJob : public testing::Test, protected MailWorld {
 protected:
  SendingAPrintJob() {
    files.contents[modelFile.name] =
        "<Modelos><Modelo Numero=\"1\" Width=\"3000\" "
        "Height=\"3000\"><Campo><Descripcion>#Total</Descripcion>"
        "<Top>100</Top><Left>100</Left><Width>900</Width><Height>300</Height></Campo></Modelo></Modelos>";
    data::MailSettings& mail = job.mail;
    mail.rutaEmail = u"C:\\Correo\\";
    mail.email = u"jose@cliente.es";
    mail.emailCC = u"copia@cliente.es";
    mail.desCC = u"Copia, S.L.";
    mail.nombreDestinatario = u"Muñoz, José";
    mail.emailTexto = u"<p>Hola</p>";
    mail.emailTema = u"Factura";
    mail.smtpHost = u"smtp.correo.es";
    mail.smtpPort = 25;
    mail.from = u"ana@correo.es";
    mail.fromDisplayName = u"García, Ana";
    mail.userName = u"ana";
    mail.password = u"secreto";
    mail.usePopAuthentication = true;
    mail.pop3Host = u"pop.correo.es";
    mail.receipt = true;
  }

  int Send() {
    return ErrorOf([&] { return EnviarEmail(job, environment), 0; });
  }
  int SendModel(std::u16string folder, std::u16string_view file) {
    return ErrorOf([&] {
      EmailModelo(job, environment, folder, file);
      usedFolder_ = folder;
      return 0;
    });
  }
  std::u16string ErrorTextOfSendingModel() {
    std::u16string folder = u"C:\\Docs\\";
    try {
      EmailModelo(job, environment, folder, u"f.pdf");
    } catch (const runtime::RuntimeError& error) {
      return error.description();
    }
    return {};
  }

  std::u16string usedFolder_;
};

TEST_F(SendingAPrintJob, WritesTheSettingsOfTheJobAsTheyAre) {
  EXPECT_EQ(Send(), 0);
  const std::string password = Line("Password");
  EXPECT_EQ(ReversedPassword(runtime::FromBytes(password)), u"secreto");
  EXPECT_EQ(PackedRequest(),
            "Tema=Factura\r\nAttachments=\r\nHTMText=Email.htm\r\nHTMDir=\r\nSMTPHost=smtp.correo.es\r\n"
            "SMTPPort=25\r\nSSL=Falso\r\nNombreDestinatario=Mu\xF1oz, Jos\xE9\r\n"
            "emailDestinatario=jose@cliente.es\r\nFrom=ana@correo.es\r\nFromDisplayName=Garc\xED"
            "a, Ana\r\n"
            "EmailCC=copia@cliente.es\r\nDesCC=Copia, S.L.\r\nPassword=" +
                password +
                "\r\nUserName=ana\r\nUseAuthentication=Falso\r\nUsePopAuthentication=Verdadero\r\n"
                "PoP3Host=pop.correo.es\r\nReceipt=Verdadero\r\n");
}

TEST_F(SendingAPrintJob, UsesTheTextAsTheBodyWithoutAnyTemplate) {
  job.mail.htmDir = u"C:\\html\\";
  job.mail.emailTexto = u"uno\r\n<TEXTO><img src=\"img/a.gif\">";
  files.contents[u"C:\\html\\IMG\\A.GIF"] = "gif";
  EXPECT_EQ(Send(), 0);
  EXPECT_EQ(PackedBody(), "uno\r\n<TEXTO><img src=\"a.gif\">");
  EXPECT_EQ(Line("HTMDir"), "C:\\html\\");
  EXPECT_EQ(Line("Attachments"), "A.GIF;");
}

TEST_F(SendingAPrintJob, SendsItsAttachmentsAndKeepsTheirPaths) {
  files.contents[u"C:\\a\\x.pdf"] = "equis";
  job.mail.attachments = u"C:\\a\\x.pdf";
  EXPECT_EQ(Send(), 0);
  EXPECT_EQ(Line("Attachments"), "x.pdf;");
  EXPECT_EQ(archiver.packed.at(u"C:\\a\\x.pdf"), "equis");
  EXPECT_EQ(job.mail.attachments, u"C:\\a\\x.pdf");
}

TEST_F(SendingAPrintJob, CallsARecipientThatIsAnAddressDestinatario) {
  job.mail.nombreDestinatario = u"jose@cliente.es";
  EXPECT_EQ(Send(), 0);
  EXPECT_EQ(job.mail.nombreDestinatario, u"Destinatario");
  EXPECT_TRUE(archiver.archive.ends_with(u"·Factura·Destinatario·.zip"));
}

TEST_F(SendingAPrintJob, DoesNothingForNobody) {
  job.mail.email.clear();
  EXPECT_EQ(Send(), 0);
  EXPECT_TRUE(NothingWasHandedOff());
}

TEST_F(SendingAPrintJob, RaisesItsOwnErrorWithTheDescriptionOfWhatStoppedIt) {
  files.failReplaceWith = runtime::ErrorNumber::DiskFull;
  EXPECT_EQ(Send(), 50103);
  try {
    EnviarEmail(job, environment);
  } catch (const runtime::RuntimeError& error) {
    EXPECT_EQ(error.description(), u"Disco lleno");
  }
  EXPECT_TRUE(NothingWasHandedOff());
}

TEST_F(SendingAPrintJob, RaisesItsOwnErrorWhenTheSenderCannotBeStarted) {
  processes.failWith = runtime::ErrorNumber::FileNotFound;
  EXPECT_EQ(Send(), 50103);
  EXPECT_TRUE(LooseFilesAreGone());
}

TEST_F(SendingAPrintJob, SendsTheComposedPdfInPlaceOfItsAttachments) {
  job.mail.attachments = u"C:\\a\\x.pdf";
  EXPECT_EQ(SendModel(u"C:\\Docs\\", u"Factura.Pdf"), 0);
  EXPECT_TRUE(files.contents.at(u"C:\\Docs\\\\Factura.Pdf").starts_with("%PDF-"));
  EXPECT_EQ(Line("Attachments"), "Factura.Pdf;");
  EXPECT_EQ(archiver.runs.back().files, (std::vector<std::u16string>{u"C:\\Docs\\Factura.Pdf"}));
  EXPECT_EQ(archiver.runs.size(), 2u);
}

TEST_F(SendingAPrintJob, SendsTheComposedArchive) {
  EXPECT_EQ(SendModel(u"C:\\Docs\\", u"factura.zip"), 0);
  EXPECT_EQ(Line("Attachments"), "factura.zip;");
  EXPECT_EQ(archiver.runs.size(), 3u);  // the document's own run before the two of the hand-off
}

TEST_F(SendingAPrintJob, SendsTheDocumentOfAFolderThatIsNamedFromTheCurrentOne) {
  EXPECT_EQ(SendModel(u"Docs\\", u"factura.pdf"), 0);
  EXPECT_EQ(archiver.runs.back().files, (std::vector<std::u16string>{u"C:\\Inicio\\Docs\\factura.pdf"}));
}

TEST_F(SendingAPrintJob, SendsTheFilesOfAFolderThatIsNamedFromTheCurrentOne) {
  job.mail.htmDir = u"html\\";
  job.mail.emailTexto = u"<img src=\"logo.gif\">";
  files.contents[u"html\\LOGO.GIF"] = "gif";
  EXPECT_EQ(Send(), 0);
  EXPECT_EQ(Line("Attachments"), "LOGO.GIF;");
  EXPECT_EQ(archiver.runs.back(),
            (SnapshotArchiver::Run{{u"C:\\Inicio\\html\\LOGO.GIF"}, u"C:\\Inicio\\html"}));
}

TEST_F(SendingAPrintJob, UsesAnOutboxThatIsNamedFromTheCurrentFolder) {
  job.mail.rutaEmail = u"Correo\\";
  EXPECT_EQ(Send(), 0);
  EXPECT_TRUE(archiver.archive.starts_with(u"C:\\Inicio\\Correo\\Bandeja de Salida\\"));
}

TEST_F(SendingAPrintJob, ComposesNothingForAnotherEnding) {
  EXPECT_EQ(SendModel(u"C:\\Docs\\", u"carta.doc"), 0);
  EXPECT_EQ(pages.made, 0);
  EXPECT_EQ(Line("Attachments"), "carta.doc;");
}

TEST_F(SendingAPrintJob, ComposesInTheComponentsFolderWhereNoneIsGivenAndSaysSo) {
  EXPECT_EQ(SendModel(u"", u"carta.doc"), 0);
  EXPECT_EQ(usedFolder_, u"C:\\Programas\\Modelos\\");
}

TEST_F(SendingAPrintJob, ComposesButHandsNothingOffForNobody) {
  job.mail.email.clear();
  EXPECT_EQ(SendModel(u"C:\\Docs\\", u"f.pdf"), 0);
  EXPECT_EQ(pages.made, 1);
  EXPECT_TRUE(NothingWasHandedOff());
}

TEST_F(SendingAPrintJob, PassesErrorsOfComposingOn) {
  job.numeroModelo = 7.0;
  EXPECT_EQ(SendModel(u"C:\\Docs\\", u"f.pdf"), 50102);
  EXPECT_TRUE(NothingWasHandedOff());
}

TEST_F(SendingAPrintJob, GoesOnAfterErrorsOnceTheDocumentIsThere) {
  processes.failWith = runtime::ErrorNumber::InvalidArgument;
  EXPECT_EQ(ErrorTextOfSendingModel(), u"Llamada al procedimiento no válida");
  EXPECT_TRUE(LooseFilesAreGone());
}

// The request, the body or the archive cannot be made.
class WhenAStepFails : public SendingAPrintJob {
 protected:
  struct Refusing : fakes::MemoryFiles {
    std::u16string refused = u"EMAIL.TXT";

    void Replace(std::u16string_view path, std::string_view bytes) override {
      if (path.ends_with(refused)) throw runtime::RuntimeError(runtime::ErrorNumber::PermissionDenied);
      MemoryFiles::Replace(path, bytes);
    }
  };
  struct Throwing : platform::Archiver {
    [[nodiscard]] platform::ZipResult Add(std::u16string_view, const std::vector<std::u16string>&) override {
      throw runtime::RuntimeError(runtime::ErrorNumber::OutOfMemory);
    }
  };
  WhenAStepFails() { refusing.contents = files.contents; }

  Refusing refusing;
  print::Environment otherPrinting = PrintingWith(refusing);
  Environment other{otherPrinting, folders, processes, archiver, pages, profiles, random};
};

TEST_F(WhenAStepFails, AModelGoesOnWithoutItsRequestAndTellsAtTheEnd) {
  std::u16string folder = u"C:\\Docs\\";
  EXPECT_EQ(ErrorOf([&] { return EmailModelo(job, other, folder, u"f.doc"), 0; }), 50103);
  EXPECT_EQ(archiver.runs.size(), 2u);
  EXPECT_EQ(processes.started.size(), 1u);
  EXPECT_FALSE(refusing.contents.contains(kBodyPath));
}

TEST_F(WhenAStepFails, APlainMessageStopsWithoutItsRequest) {
  EXPECT_EQ(ErrorOf([&] { return EnviarEmail(job, other), 0; }), 50103);
  EXPECT_TRUE(archiver.runs.empty());
  EXPECT_TRUE(processes.started.empty());
}

TEST_F(WhenAStepFails, ARequestWithoutItsBodyDoesNotStay) {
  refusing.refused = u"EMAIL.HTM";
  EXPECT_EQ(ErrorOf([&] { return EnviarEmail(job, other), 0; }), 50103);
  EXPECT_EQ(refusing.replacements.size(), 1u);  // the request was written
  EXPECT_FALSE(refusing.contents.contains(kRequestPath));
}

TEST_F(WhenAStepFails, NothingStaysWhenPackingFails) {
  Throwing throwing;
  const Environment failing{printing, folders, processes, throwing, pages, profiles, random};
  EXPECT_EQ(ErrorOf([&] { return EnviarEmail(job, failing), 0; }), 50103);
  EXPECT_EQ(files.replacements.size(), 2u);
  EXPECT_TRUE(LooseFilesAreGone());
  EXPECT_TRUE(processes.started.empty());
}

}  // namespace
}  // namespace qm::mail
