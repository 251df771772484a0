' Binds the free-column editor to a host that is written as classes of this script, has the column checked, and lets
' everything go.
'
'   cscript //nologo host.vbs
'
' The library must be registered (regsvr32 BrivaneVrijeKolom.dll). The script hears the editor's events through the relay
' that the library's tests use (regsvr32 BrivaneTestRelay.dll), and works without it. What an adviser does with the editor on the screen is for
' a host with a window: see ../container.
Option Explicit

' The host's objects. The library reads and writes their members by name; docs/windows.md lists them all.

Class Amount
  Public Naam          ' of the scenario
  Public Invoersoort   ' 1 amounts, 2 percentages, 3 both
  Public Basisbedrag   ' euros
  Public Function Periode(positie)
    Set Periode = Nothing  ' no development over time yet
  End Function
  Public Property Get Bedrag()
    Bedrag = Basisbedrag
  End Property
  Public Property Let Bedrag(euros)
    Basisbedrag = euros
  End Property
End Class

Class Column
  Public Id : Public CorrectieLast : Public CorrectieFiscaal : Public HeffingBij : Public Omschrijving
  Public Bedrag : Public Termijn : Public InkomenUitArbeid : Public InDagloon : Public DatumAanvang
  Public Looptijd : Public Contractvervaldatum : Public IsProduct : Public Maatschappij : Public MaatschappijNaam
  Public Productsoort : Public ProductsoortOmschrijving : Public Productnaam : Public UwBemiddeling
  Public UitsluitenAO : Public UitsluitenWW : Public UitsluitenLangleven : Public ScenarioOverlijden
  Public PercentageOvergang : Public EinddatumOvergang : Public EindleeftijdOvergang
  Private Sub Class_Initialize()
    Id = 1 : CorrectieLast = 1 : CorrectieFiscaal = 1 : HeffingBij = 1 : Termijn = 1 : Looptijd = 0 : Productsoort = 0
    Set Bedrag = New Amount
    Bedrag.Naam = "Vrije kolom" : Bedrag.Invoersoort = 1 : Bedrag.Basisbedrag = 0
  End Sub
  ' The header text of the column, which the editor hands out in its event.
  Public Property Get Kopregel()
    Kopregel = Omschrijving & " " & Bedrag.Basisbedrag & " euro"
  End Property
  Public Property Get Weergave()
    Weergave = Kopregel
  End Property
  ' This case works without proposals.
  Public Property Get Voorstel(nummer)
    Voorstel = "N"
  End Property
  Public Property Let Voorstel(nummer, lidmaatschap)
  End Property
End Class

Class Loan
  Public column1
  Public Function VrijeKolommen(Vrij_Id)
    Set VrijeKolommen = Nothing
    If Vrij_Id = 1 Then Set VrijeKolommen = column1
  End Function
  Public Function VrijeKolom(Vrij_Id)
    Set VrijeKolom = VrijeKolommen(Vrij_Id)
  End Function
  Public Function VrijeKolomOp(positie)
    Set VrijeKolomOp = VrijeKolommen(positie)
  End Function
End Class

Class Person
  Public Naam           ' three strings
  Public Geboortedatum
End Class

Class LoanFile
  Public HuidigeLening
  Public applicant
  Public Function Lening(Len_Id)
    Set Lening = Nothing  ' no new situation yet
    If Len_Id = 0 Then Set Lening = HuidigeLening
  End Function
  Public Function Persoon(nummer)
    Set Persoon = Nothing
    If nummer = 1 Then Set Persoon = applicant
  End Function
End Class

Class Host
  Public Dossier
  ' Whatever goes wrong in the editor comes here, once.
  Public Sub ReportError(trace)
    WScript.Echo "error " & trace.ErrorNumber & ": " & trace.ErrorDescription
  End Sub
End Class

' What the host hears from the editor.
Class Listener
  Public Sub RefreshTopDisplay(text)
    WScript.Echo "header: " & text
  End Sub
  Public Sub HeightChanged()
    WScript.Echo "laid out"
  End Sub
End Class

' One loan with one column: 12 euro a month from April 2031 on, for 14 months.
Dim application, column1
Set column1 = New Column
column1.Omschrijving = "Krant"
column1.Bedrag.Basisbedrag = 12
column1.DatumAanvang = DateSerial(2031, 4, 1)
column1.Looptijd = 14
Set application = New Host
Set application.Dossier = New LoanFile
Set application.Dossier.HuidigeLening = New Loan
Set application.Dossier.HuidigeLening.column1 = column1
Set application.Dossier.applicant = New Person
application.Dossier.applicant.Naam = Array("J.", "van", "Dam")
application.Dossier.applicant.Geboortedatum = DateSerial(1975, 12, 31)

' The editor, bound to column 1 of the current situation.
Dim editor, relay, cancel
Set editor = CreateObject("BrivaneVrijeKolom.VrijeKolom")
On Error Resume Next
Set relay = CreateObject("BrivaneTest.Relay")
On Error Goto 0
If IsObject(relay) Then relay.Listen editor, New Listener
editor.SetApplication application, 0, 1

' The check before the column is left. Where something is wrong, the editor says so in a message box and refuses.
cancel = False
editor.Validation cancel
WScript.Echo "everything checked, refused: " & CStr(cancel)
editor.BackColor = RGB(255, 255, 255)
WScript.Echo "background: " & Hex(editor.BackColor)

' A column that there is not.
editor.SetApplication application, 0, 7

' Let go of the host's objects, then of the editor.
If IsObject(relay) Then relay.Silence
editor.SetApplication Nothing, 0, 0
Set editor = Nothing
WScript.Echo "done"
