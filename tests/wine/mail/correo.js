// correo.js FOLDER SENDER_LOG: a script host that keeps two mail profiles and sends three messages, with an
// attachment, a template and a composed model. ASCII only, names and texts with a tilde by their code.
var failures = 0;

function expect(what, expected, actual) {
  if (expected === actual) return;
  failures++;
  WScript.Echo(what + ": expected <" + expected + ">, got <" + actual + ">");
}

// The number and text of the error of an action, or "none".
function errorOf(action) {
  try {
    action();
    return "none";
  } catch (error) {
    return (error.number & 0xFFFF) + " " + error.description;
  }
}

var folder = WScript.Arguments(0) + "\\", senderLog = WScript.Arguments(1);
var files = new ActiveXObject("Scripting.FileSystemObject");
var shell = new ActiveXObject("WScript.Shell");
shell.RegWrite("HKCU\\Software\\TALVO\\ConDir", folder);

function textFile(name, text) {
  var file = files.CreateTextFile(folder + name, true);
  file.Write(text);
  file.Close();
}

function newEmail() { return new ActiveXObject("Qm_Modelo_Impresion3.Email"); }

// Without profiles.
expect("no profiles", "No hay ning\u00FAn perfil", newEmail().LeerPerfiles(0).Item(1));
expect("no default", "Perfil no existe", newEmail().PerfilPorDefecto());
expect("nothing made by reading", false, files.FolderExists(folder + "email"));

// Two profiles, kept with the record-file library.
var campos = ["Usuario", "Perfil", "SMTPServer", "Remitente", "EmailRemitente", "EmailCC", "DesCC", "AcuseRecibo",
              "UseAuthentication", "UserName", "Password", "UsePopAuthentication", "PoP3Host", "HTMFile",
              "EmailTema", "RutaEmail", "PorDefecto", "SMTPPort", "SSL"];
files.CreateFolder(folder + "email");
var perfiles = new ActiveXObject("QmFile2.QmFileControl2");
perfiles.Crear(folder + "email\\email00.qmd", "", "EMAIL", campos.join(";"));
function addProfile(values) {
  perfiles["A\u00F1adirRegistro"]();
  for (var field in values) perfiles.EscribirCampo(values[field], Number(field));
}
addProfile({2: "Ventas", 3: "smtp.ventas.es"});
addProfile({2: "Oficina", 3: "smtp.correo.es", 4: "Garc\u00EDa, Ana", 5: "ana@correo.es", 6: "archivo@correo.es",
            7: "Archivo, S.L.", 9: "1", 10: "ana", 11: "Contrase\u00F1a 1!", 12: "0", 13: "pop.correo.es",
            14: folder + "carta.htm", 16: folder + "espera\\", 17: "1", 18: "465", 19: "1"});
perfiles.Guardar();
perfiles.Cerrar();

var email = newEmail();
var names = "";
for (var each = new Enumerator(email.LeerPerfiles(0)); !each.atEnd(); each.moveNext()) names += each.item() + ".";
expect("names in order", "Oficina.Ventas.", names);
expect("default", "Oficina", email.Perfil);
expect("unknown", "50000 ERROR: El perfil Otro no existe", errorOf(function () { email.Perfil = " Otro "; }));
email.Perfil = "OFICINA";
expect("chosen", "OFICINA", email.Perfil);

// A message with a template, a picture that the template refers to, and an attachment.
textFile("carta.htm", "<html><body><p>&lt;TEXTO&gt;</p><img src=\"img/Logo%20A.gif\"><img src=\"falta.gif\"></body></html>");
files.CreateFolder(folder + "img");
textFile("img\\Logo A.gif", "GIF89a");
textFile("presupuesto a\u00F1o.pdf", "%PDF-1.4 de mentira");
email.EmailDestinatario = " jose@cliente.es ";
email.NombreDestinatario = "Mu\u00F1oz, Jos\u00E9";
email.Tema = "Factura 12/2024: pago";
email.Texto = "Buenos d\u00EDas:\r\nadjuntamos la factura de 1.234,50 \u20AC";
email.ArchivosAdjuntos = folder + "presupuesto a\u00F1o.pdf";
email.Recibo = true;
expect("sent", "", email.Enviar());
expect("not waited for", false, files.FileExists(senderLog));
expect("attachments afterwards", "presupuesto a\u00F1o.pdf;LOGO A.GIF;", email.ArchivosAdjuntos);
expect("copy afterwards", "archivo@correo.es", email.CC);
expect("text afterwards", "Buenos d\u00EDas:<BR>adjuntamos la factura de 1.234,50 \u20AC", email.Texto);

// A name that no file can have, and a subject that tries to leave the folder.
email.Tema = new Array(301).join("x");
expect("too long", "ERROR Nombre o n\u00FAmero de archivo incorrecto", email.Enviar());
email.Tema = "..\\..\\CON \"x\"";
email.NombreDestinatario = "uno@cliente.es;dos@cliente.es";
email.ArchivosAdjuntos = "CON;NUL;" + folder + "no existe.pdf";
expect("hostile", "", email.Enviar());
expect("replaced name", "Destinatario", email.NombreDestinatario);

// Print jobs: a plain message and a composed model.
var job = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
job.RutaEmail = folder + "trabajos\\";
job.Email = "jose@cliente.es";
job.NombreDestinatario = "Jos\u00E9";
job.EmailTema = "Aviso";
job.EmailTexto = "Hola\r\n<img src=\"img/Logo%20A.gif\">";
job.HtmDir = folder;
job.Attachments = folder + "presupuesto a\u00F1o.pdf";
job.SMTPHost = "smtp.correo.es";
job.SMTPPort = 25;
job.From = "ana@correo.es";
job.FromDisplayName = "Garc\u00EDa, Ana";
job.UserName = "ana";
job.Password = "secreto";
job.UseAuthentication = true;
job.PoP3Host = "pop.correo.es";
expect("EnviarEmail", "none", errorOf(function () { job.EnviarEmail(); }));

job.XMLFileName = folder + "modelos.xml";
job.NumeroModelo = 1;
job.AsignarCampo("Cliente", "Mu\u00F1oz");
job.EmailTema = "Documento";
expect("EmailModelo", "none", errorOf(function () { job.EmailModelo(folder, "", "Factura n\u00BA 1.pdf"); }));
shell.CurrentDirectory = folder;
job.EmailTema = "Relativo";
expect("EmailModelo in a folder of the current one", "none",
       errorOf(function () { job.EmailModelo("salida\\", "", "aviso.pdf"); }));
expect("a device as the document", 52, parseInt(errorOf(function () { job.EmailModelo(folder, "", "CON.pdf"); }), 10));
job.EmailTema = "Archivo";
expect("EmailModelo ZIP", "none", errorOf(function () { job.EmailModelo(folder, "", "factura.zip"); }));
job.NumeroModelo = 9;
expect("no such model", 50102, parseInt(errorOf(function () { job.EmailModelo(folder, "", "nada.pdf"); }), 10));
job.NumeroModelo = 1;
job.RutaEmail = folder + "tra\"bajos\\";
expect("quote in the folder", "50103 Nombre o n\u00FAmero de archivo incorrecto",
       errorOf(function () { job.EnviarEmail(); }));

WScript.Echo(failures === 0 ? "host finished: everything as expected" : "host finished: " + failures + " failures");
WScript.Quit(failures === 0 ? 0 : 1);
