// Envía la factura de ejemplo por correo, como PDF y con una plantilla HTML. El envío lo hace el programa de
// correo, que recibe un archivo en la bandeja de salida.
// Uso: cscript //nologo correo.js [CARPETA]   (por omisión, la de archivos temporales)
var carpeta = WScript.ScriptFullName.replace(/[^\\]*$/, "");
var sistema = new ActiveXObject("Scripting.FileSystemObject");
var salida = (WScript.Arguments.length > 0 ? WScript.Arguments(0)
                                           : sistema.GetSpecialFolder(2).Path).replace(/\\?$/, "\\");

var impresion = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
impresion.XMLFileName = carpeta + "modelos.xml";
impresion.NumeroModelo = 1;
impresion.AsignarCampo("Numero", "2015/0042");
impresion.AsignarCampo("FormaPago", "Transferencia");
impresion.AñadirCampoTabla("CLIEN", "NOMBRE (CLIEN)", "Muñoz & Íñiguez, Construcciones", 0);
impresion.AñadirCampoTabla("FACTU", "FECHA (FACTU)", "151231", 5);
impresion.AñadirCampoTabla("FACTU", "TOTAL (FACTU)", "1099.04", 3);

// La cuenta, el destinatario y el mensaje.
impresion.RutaEmail = salida;
impresion.SMTPHost = "smtp.example.com";
impresion.SMTPPort = 465;
impresion.SSL = true;
impresion.UseAuthentication = true;
impresion.UserName = "facturas";
impresion.Password = "contraseña de ejemplo";
impresion.From = "facturas@example.com";
impresion.FromDisplayName = "Ferretería La Ñora, S.L.";
impresion.Email = "compras@example.com";
impresion.NombreDestinatario = "Muñoz & Íñiguez";
impresion.EmailTema = "Factura 2015/0042";

// PrintForm toma EmailTexto tal cual: la plantilla se rellena aquí. Las imágenes que nombra viajan con él.
var plantilla = sistema.OpenTextFile(carpeta + "plantilla.htm").ReadAll();
impresion.HtmDir = carpeta;
impresion.EmailTexto = plantilla.replace(/<TEXTO>/i, "Adjuntamos su factura.<BR>Un saludo.");

try {
    impresion.EmailModelo(salida, "", "Factura 2015-0042.pdf");
} catch (fallo) {
    WScript.Echo("Error " + (fallo.number & 0xFFFF) + ": " + fallo.description);
    WScript.Quit(1);
}
WScript.Echo("Mensaje en la bandeja de salida");
WScript.Quit(0);
