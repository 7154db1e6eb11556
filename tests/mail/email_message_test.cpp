#include "mail/email_message.h"

#include <gtest/gtest.h>

#include "runtime/code_page.h"
#include "tests/error_of.h"
#include "tests/mail/mail_world.h"
#include "tests/mail/reversed_password.h"

namespace qm::mail {
namespace {

using tests::ReversedPassword;
using Runs = std::vector<SnapshotArchiver::Run>;

constexpr std::u16string_view kNotice =
    u"ERROR El archivo HTML no contiene <TEXTO> por lo tanto se enviará como texto sin HTML";

class SendingWithAProfile : public testing::Test, protected MailWorld {
 protected:
  SendingWithAProfile() {
    AddProfile({{ProfileField::Name, u"Oficina"},
                {ProfileField::SmtpServer, u"smtp.correo.es"},
                {ProfileField::SenderName, u"García, Ana"},
                {ProfileField::SenderAddress, u"ana@correo.es"},
                {ProfileField::Cc, u"archivo@correo.es"},
                {ProfileField::CcName, u"Archivo, S.L."},
                {ProfileField::UseAuthentication, u"1"},
                {ProfileField::UserName, u"ana"},
                {ProfileField::Password, u" Clave 1! "},
                {ProfileField::UsePopAuthentication, u"-1"},
                {ProfileField::Pop3Host, u"pop.correo.es"},
                {ProfileField::RutaEmail, u"C:\\Correo\\"},
                {ProfileField::SmtpPort, u"465"},
                {ProfileField::Ssl, u"1"}});
    message.emailDestinatario = u"jose@cliente.es";
    message.nombreDestinatario = u"Muñoz, José";
    message.tema = u"Factura 12/2024: pago";
    message.texto = u"Adjuntamos\r\nla factura";
  }

  std::u16string Send() { return Enviar(message, environment); }

  EmailMessage message;
};

TEST_F(SendingWithAProfile, WritesTheRequestFromMessageAndProfile) {
  message.recibo = true;
  EXPECT_EQ(Send(), u"");
  const std::string password = Line("Password");
  EXPECT_EQ(ReversedPassword(runtime::FromBytes(password)), u"Clave 1!");
  EXPECT_EQ(
      PackedRequest(),
      "NombreDestinatario=Mu\xF1oz Jos\xE9\r\nemailDestinatario=jose@cliente.es\r\n"
      "Tema=Factura 12/2024: pago\r\nAttachments=\r\nHTMText=Email.htm\r\nHTMDir=\r\nReceipt=Verdadero\r\n"
      "EmailCC=archivo@correo.es\r\nDesCC=Archivo S.L.\r\nFrom=ana@correo.es\r\n"
      "FromDisplayName=Garc\xED"
      "a Ana\r\nSMTPHost=smtp.correo.es\r\nSMTPPort=465\r\nSSL=Verdadero\r\n"
      "Password=" +
          password +
          "\r\nUserName=ana\r\nUseAuthentication=Verdadero\r\n"
          "UsePopAuthentication=Falso\r\nPoP3Host=pop.correo.es\r\n");
  EXPECT_EQ(PackedBody(), "Adjuntamos\r\nla factura");
}

TEST_F(SendingWithAProfile, NamesTheArchiveByTimeSubjectAndRecipient) {
  static_cast<void>(Send());
  EXPECT_EQ(archiver.archive,
            u"C:\\Correo\\Bandeja de Salida\\2015-12-31·15 07·Factura 12 2024  pago·Muñoz, José·.zip");
  EXPECT_EQ(folders.made, (std::vector<std::u16string>{u"C:\\Correo", u"C:\\Correo\\Bandeja de Salida"}));
}

TEST_F(SendingWithAProfile, CallsARecipientThatIsAnAddressDestinatario) {
  for (const std::u16string_view name : {u"jose@cliente.es", u"uno;dos"}) {
    message.nombreDestinatario = name;
    static_cast<void>(Send());
    EXPECT_TRUE(archiver.archive.ends_with(u"·Destinatario·.zip"));
    EXPECT_EQ(message.nombreDestinatario, u"Destinatario");
    EXPECT_EQ(Line("NombreDestinatario"), runtime::ToBytes(name));  // the request keeps the name as given
  }
}

TEST_F(SendingWithAProfile, StartsTheSenderHiddenWithTheOutgoingFolder) {
  static_cast<void>(Send());
  EXPECT_EQ(processes.started,
            (std::vector<fakes::RecordedProcesses::Started>{
                {u"C:\\Program Files\\Common Files\\Quillmar\\Qmenviar.exe", u"\"C:\\Correo\\\"", false}}));
}

TEST_F(SendingWithAProfile, LeavesNoLooseFilesBehind) {
  static_cast<void>(Send());
  EXPECT_TRUE(LooseFilesAreGone());
}

TEST_F(SendingWithAProfile, WritesNothingForNobody) {
  message.emailDestinatario.clear();
  EXPECT_EQ(Send(), u"");
  EXPECT_TRUE(NothingWasHandedOff());
  EXPECT_EQ(message.perfil, u"Oficina");  // chosen all the same
}

TEST_F(SendingWithAProfile, ListsAttachmentsByTheirBareNamesAndPacksThemFromTheirFolders) {
  files.contents[u"C:\\a\\x.pdf"] = "equis";
  files.contents[u"C:\\b\\y.doc"] = "ye";
  message.archivosAdjuntos = u"C:\\a\\x.pdf;C:\\b\\y.doc";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(Line("Attachments"), "x.pdf;y.doc;");
  EXPECT_EQ(message.archivosAdjuntos, u"x.pdf;y.doc;");
  EXPECT_EQ(archiver.runs,
            (Runs{{{std::u16string(kRequestPath), std::u16string(kBodyPath)}, u"C:\\Users\\ana\\Trabajo"},
                  {{u"C:\\a\\x.pdf"}, u"C:\\a"},
                  {{u"C:\\b\\y.doc"}, u"C:\\b"}}));
  EXPECT_EQ(folders.currentFolder, u"C:\\b");  // left where packing put it
}

TEST_F(SendingWithAProfile, KeepsEmptyEntriesInTheLineOnly) {
  message.archivosAdjuntos = u"C:\\a\\a;b;";
  static_cast<void>(Send());
  EXPECT_EQ(Line("Attachments"), "a;b;;");
  EXPECT_EQ(archiver.runs.size(), 3u);
  EXPECT_EQ(archiver.runs[2].files[0], u"C:\\a\\b");  // in the folder where the one before lay
}

TEST_F(SendingWithAProfile, LooksForAttachmentsWithoutADriveInTheWorkingFolder) {
  message.archivosAdjuntos = u"docs\\x.pdf";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(archiver.runs.at(1).files[0], u"C:\\Users\\ana\\Trabajo\\docs\\x.pdf");
  EXPECT_EQ(folders.currentSet.back(), u"docs\\");
}

TEST_F(SendingWithAProfile, GoesOnWhereAnAttachmentsFolderIsGone) {
  folders.cannotBeSet.insert(u"E:\\nada\\");
  message.archivosAdjuntos = u"E:\\nada\\x.pdf";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(archiver.runs[1].files[0], u"E:\\nada\\x.pdf");
  EXPECT_EQ(processes.started.size(), 1u);
}

TEST_F(SendingWithAProfile, PutsTheTextIntoTheTemplateOfTheMessageOrElseOfTheProfile) {
  files.contents[u"C:\\html\\carta.htm"] = "<p><TEXTO></p><img src=\"img/Logo.gif\"><img src=\"nada.gif\">";
  files.contents[u"C:\\html\\IMG\\LOGO.GIF"] = "gif";
  message.archivoHTML = u"C:\\html\\carta.htm";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(PackedBody(), "<p>Adjuntamos<BR>la factura</p><img src=\"Logo.gif\"><img src=\"nada.gif\">");
  EXPECT_EQ(Line("HTMDir"), "C:\\html\\");
  EXPECT_EQ(Line("Attachments"), "LOGO.GIF;");
  EXPECT_EQ(message.texto, u"Adjuntamos<BR>la factura");
  EXPECT_EQ(message.archivosAdjuntos, u"LOGO.GIF;");
  EXPECT_EQ(archiver.runs.at(1), (SnapshotArchiver::Run{{u"C:\\html\\IMG\\LOGO.GIF"}, u"C:\\html\\IMG"}));
}

TEST_F(SendingWithAProfile, TakesTheProfilesTemplateWithoutKeepingItsName) {
  AddProfile({{ProfileField::Name, u"Con plantilla"}, {ProfileField::HtmlFile, u"C:\\html\\carta.htm"}});
  files.contents[u"C:\\html\\carta.htm"] = "[<TEXTO>]";
  message.perfil = u"con plantilla";
  static_cast<void>(Send());
  EXPECT_EQ(PackedBody(), "[Adjuntamos<BR>la factura]");
  EXPECT_EQ(message.archivoHTML, u"");
}

TEST_F(SendingWithAProfile, PacksReferencedFilesBeforeAttachments) {
  files.contents[u"C:\\html\\carta.htm"] = "<TEXTO><img src=\"a.gif\">";
  files.contents[u"C:\\html\\A.GIF"] = "gif";
  message.archivoHTML = u"C:\\html\\carta.htm";
  message.archivosAdjuntos = u"C:\\x.pdf";
  static_cast<void>(Send());
  EXPECT_EQ(Line("Attachments"), "x.pdf;A.GIF;");
  ASSERT_EQ(archiver.runs.size(), 3u);
  EXPECT_EQ(archiver.runs[1].files[0], u"C:\\html\\A.GIF");
  EXPECT_EQ(archiver.runs[2].files[0], u"C:\\x.pdf");
}

TEST_F(SendingWithAProfile, GoesWithoutATemplateThatIsMissingButNamesItsFolder) {
  message.archivoHTML = u"C:\\html\\nada.htm";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(PackedBody(), "Adjuntamos\r\nla factura");
  EXPECT_EQ(Line("HTMDir"), "C:\\html\\");
}

TEST_F(SendingWithAProfile, SaysThatATextFoundNoPlaceInTheTemplate) {
  files.contents[u"C:\\html\\carta.htm"] = "<p>Hola</p>";
  message.archivoHTML = u"C:\\html\\carta.htm";
  EXPECT_EQ(Send(), kNotice);
  EXPECT_EQ(PackedBody(), "Adjuntamos<BR>la factura");
  EXPECT_EQ(processes.started.size(), 1u);  // it was handed off all the same

  message.archivoHTML.clear();
  EXPECT_EQ(Send(), kNotice);  // and says so again without a template
}

TEST_F(SendingWithAProfile, KeepsTheCopyAddressOfTheMessage) {
  message.cc = u"otro@correo.es";
  static_cast<void>(Send());
  EXPECT_EQ(Line("EmailCC"), "otro@correo.es");
  EXPECT_EQ(Line("DesCC"), "Archivo S.L.");
  EXPECT_EQ(message.cc, u"otro@correo.es");
  EXPECT_EQ(message.nombreCC, u"Archivo, S.L.");  // filled from the profile, with its comma
}

TEST_F(SendingWithAProfile, UsesEmptySettingsForAProfileThatTheFileLacks) {
  message.perfil = u"Desaparecido";
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(Line("SMTPHost"), "");
  EXPECT_EQ(Line("Password"), "");
  EXPECT_EQ(archiver.archive.substr(0, 30), u"C:\\Inicio\\Bandeja de Salida\\20");  // made absolute at once
}

TEST_F(SendingWithAProfile, NeedsAProfileName) {
  files.contents.clear();
  AddProfileNamed(u"");
  EXPECT_EQ(tests::ErrorOf([&] { return Send(); }), 50000);
  try {
    static_cast<void>(Send());
  } catch (const runtime::RuntimeError& error) {
    EXPECT_EQ(error.description(), u"ERROR: El perfil no existe");
  }
  EXPECT_TRUE(NothingWasHandedOff());
}

TEST_F(SendingWithAProfile, WithNoProfileAtAllUsesInitialValues) {
  files.contents.clear();
  EXPECT_EQ(Send(), u"");
  EXPECT_EQ(message.perfil, u"Perfil no existe");
  EXPECT_EQ(Line("SMTPPort"), "");
  EXPECT_EQ(Line("HTMDir"), "C:\\Users\\ana\\Trabajo\\Config\\email\\");
}

TEST_F(SendingWithAProfile, ReportsWhatEndsItAndLeavesNothingLoose) {
  files.failReplaceWith = runtime::ErrorNumber::DiskFull;
  EXPECT_EQ(Send(), u"ERROR Disco lleno");
  EXPECT_TRUE(NothingWasHandedOff());

  files.failReplaceWith.reset();
  processes.failWith = runtime::ErrorNumber::FileNotFound;
  EXPECT_EQ(Send(), u"ERROR Archivo no encontrado");
  EXPECT_TRUE(LooseFilesAreGone());
  EXPECT_EQ(archiver.runs.size(), 1u);  // the archive waits for the next start of the sender
}

TEST_F(SendingWithAProfile, SaysNothingOfWhatPackingEndsWith) {
  archiver.result = platform::ZipResult::DiskFull;
  EXPECT_EQ(Send(), u"");
  EXPECT_TRUE(prompts.warnings.empty());
  EXPECT_TRUE(LooseFilesAreGone());
  EXPECT_EQ(processes.started.size(), 1u);
}

}  // namespace
}  // namespace qm::mail
