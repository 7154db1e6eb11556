' Imprime un recibo de ejemplo en "Impresora Recibos"; si no existe, se pregunta por otra.
' Uso: cscript //nologo recibo.vbs
Option Explicit
Dim carpeta, impresion
carpeta = Left(WScript.ScriptFullName, InStrRev(WScript.ScriptFullName, "\"))

Set impresion = CreateObject("Qm_Modelo_Impresion3.PrintForm")
impresion.XMLFileName = carpeta & "modelos.xml"
impresion.NumeroModelo = 2

impresion.AsignarCampo "Numero", "Recibo 7/2015"
impresion.AsignarCampo "Observaciones", "Señal del pedido 311, a cuenta de la factura 2015/0042"
impresion.AñadirCampoTabla "CLIEN", "NOMBRE (CLIEN)", "Muñoz & Íñiguez, Construcciones", 0
impresion.AñadirCampoTabla "FACTU", "TOTAL (FACTU)", "500", 3
impresion.AñadirCampoTabla "FACTU", "FECHA (FACTU)", "151231", 5

impresion.ImprimirModelo
If impresion.ImpresionAnulada Then
    WScript.Echo "Impresión anulada"
    WScript.Quit 2
End If
WScript.Echo "Recibo impreso"
WScript.Quit 0
