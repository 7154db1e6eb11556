' valores.vbs ARCHIVO NUMERO: assigns values of every kind and prints.
Option Explicit
Dim impresion
Set impresion = CreateObject("Qm_Modelo_Impresion3.PrintForm")
impresion.XMLFileName = WScript.Arguments(0)
impresion.NumeroModelo = WScript.Arguments(1)
impresion.AsignarCampo "Numero", 1234.5
impresion.AsignarCampo "Fecha", #12/31/2015#
impresion.AsignarCampo "Pagado", True
impresion.AsignarCampo "Texto", "1234,5"
impresion.AñadirCampoTabla "TABLA", "Importe", "1234.5", 3
impresion.AñadirCampoTabla "TABLA", "Millones", "-1234567.891", 80
impresion.AñadirCampoTabla "TABLA", "Cero", "0", 3
impresion.AñadirCampoTabla "TABLA", "Dia", "151231", 5
impresion.ImprimirModelo
If impresion.ImpresionAnulada Then WScript.Echo "anulado" Else WScript.Echo "impreso"
WScript.Echo "fin"
WScript.Quit 0
