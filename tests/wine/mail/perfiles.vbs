' A VBScript host that walks the mail profiles and asks for the place of one.
Option Explicit
Dim email, names, name, place
Set email = CreateObject("Qm_Modelo_Impresion3.Email")
place = 0
For Each name In email.LeerPerfiles(place, "Ventas")
  names = names & name & "."
Next
If names = "Oficina.Ventas." And place = 2 And email.LeerPerfiles(place).Count = 2 And place = 1 Then
  WScript.Echo "host finished: everything as expected"
Else
  WScript.Echo names & " " & place
  WScript.Quit 1
End If
