Option Explicit

' A host written as classes of a script: every object of the host's model as a plain record. What is told of here
' (reads, writes, calls) is what the library did to the host.

Dim terminated, journal
terminated = 0
journal = ""

Sub Note(text)
  journal = journal & text & ";"
End Sub

Class PeriodeHost
  Public Maand : Public Bedrag : Public Percentage : Public Korting : Public Eenmalig
  Private Sub Class_Initialize()
    Maand = 0 : Bedrag = 0 : Percentage = 0 : Korting = 0 : Eenmalig = False
  End Sub
End Class

Class BedragHost
  Public Naam : Public Invoersoort : Public waarde : Public perioden
  Private Sub Class_Initialize()
    Naam = "Vrije kolom" : Invoersoort = 1 : waarde = 0
    Set perioden = CreateObject("Scripting.Dictionary")
  End Sub
  Private Sub Class_Terminate()
    terminated = terminated + 1
  End Sub
  Public Property Get Basisbedrag()
    Basisbedrag = waarde
  End Property
  Public Property Let Basisbedrag(nieuw)
    waarde = nieuw
    Note "Basisbedrag=" & nieuw
  End Property
  Public Property Get Bedrag()
    Bedrag = waarde
  End Property
  Public Property Let Bedrag(nieuw)
    waarde = nieuw
    Note "Bedrag=" & nieuw
  End Property
  Public Function Periode(positie)
    Set Periode = Nothing
    If perioden.Exists(CStr(positie)) Then Set Periode = perioden.Item(CStr(positie))
  End Function
  Public Function NieuwePeriode()
    Dim nieuw
    Set nieuw = New PeriodeHost
    perioden.Add CStr(perioden.Count + 1), nieuw
    NieuwePeriode = perioden.Count
  End Function
  Public Sub VerwijderPeriode(positie)
    Dim i
    For i = positie To perioden.Count - 1
      Set perioden.Item(CStr(i)) = perioden.Item(CStr(i + 1))
    Next
    perioden.Remove CStr(perioden.Count)
  End Sub
End Class

Class KolomHost
  Public Id : Public CorrectieLast : Public CorrectieFiscaal : Public HeffingBij : Public Omschrijving
  Public Bedrag : Public Termijn : Public InkomenUitArbeid : Public InDagloon
  Public DatumAanvang : Public Looptijd : Public Contractvervaldatum : Public IsProduct : Public Maatschappij
  Public MaatschappijNaam : Public Productsoort
  Public ProductsoortOmschrijving : Public Productnaam : Public UwBemiddeling : Public UitsluitenAO
  Public UitsluitenWW : Public UitsluitenLangleven
  Public ScenarioOverlijden : Public PercentageOvergang : Public EinddatumOvergang
  Public EindleeftijdOvergang
  Private lid1 : Private lid2 : Private lid3
  Private Sub Class_Initialize()
    Id = 1 : CorrectieLast = 1 : CorrectieFiscaal = 1 : HeffingBij = 1 : Omschrijving = "Krant"
    Set Bedrag = New BedragHost
    Termijn = 1 : InkomenUitArbeid = False : InDagloon = False : DatumAanvang = CDate(0) : Looptijd = 0
    Contractvervaldatum = CDate(0) : IsProduct = False : Maatschappij = "" : MaatschappijNaam = "" : Productsoort = 0
    ProductsoortOmschrijving = "" : Productnaam = "" : UwBemiddeling = False : UitsluitenAO = False
    UitsluitenWW = False : UitsluitenLangleven = False : ScenarioOverlijden = False : PercentageOvergang = 0
    EinddatumOvergang = CDate(0) : EindleeftijdOvergang = 0
    lid1 = "" : lid2 = "" : lid3 = ""
  End Sub
  Private Sub Class_Terminate()
    terminated = terminated + 1
  End Sub
  Public Property Get Weergave()
    Weergave = "W " & Omschrijving
  End Property
  Public Property Get Kopregel()
    Kopregel = "K " & Omschrijving
  End Property
  Public Property Get Voorstel(nummer)
    If nummer = 1 Then Voorstel = lid1
    If nummer = 2 Then Voorstel = lid2
    If nummer = 3 Then Voorstel = lid3
  End Property
  Public Property Let Voorstel(nummer, lid)
    If nummer = 1 Then lid1 = lid
    If nummer = 2 Then lid2 = lid
    If nummer = 3 Then lid3 = lid
    Note "Voorstel" & nummer & "=" & lid
  End Property
End Class

Class LeningHost
  Public kolommen
  Private Sub Class_Initialize()
    Set kolommen = CreateObject("Scripting.Dictionary")
  End Sub
  Private Sub Class_Terminate()
    terminated = terminated + 1
  End Sub
  Public Function VrijeKolommen(Vrij_Id)
    Set VrijeKolommen = Nothing
    If kolommen.Exists(CStr(Vrij_Id)) Then Set VrijeKolommen = kolommen.Item(CStr(Vrij_Id))
  End Function
  Public Function VrijeKolom(Vrij_Id)
    Set VrijeKolom = VrijeKolommen(Vrij_Id)
  End Function
  Public Function VrijeKolomOp(positie)
    Dim sleutels
    Set VrijeKolomOp = Nothing
    sleutels = kolommen.Keys
    If positie >= 1 And positie <= kolommen.Count Then Set VrijeKolomOp = kolommen.Item(sleutels(positie - 1))
  End Function
  Public Sub VerwijderVrijeKolom(positie)
    Dim sleutels
    sleutels = kolommen.Keys
    kolommen.Remove sleutels(positie - 1)
    Note "VerwijderVrijeKolom(" & positie & ")"
  End Sub
End Class

Class PersoonHost
  Public Naam : Public Geboortedatum
  Private Sub Class_Terminate()
    terminated = terminated + 1
  End Sub
End Class

Class UitgangspuntenHost
  Public Leeftijd
End Class

Class DossierHost
  Public HuidigeLening : Public nieuwe : Public aanvrager : Public partner
  Private Sub Class_Initialize()
    Set HuidigeLening = New LeningHost
    Set nieuwe = New LeningHost
    Set aanvrager = Nothing
    Set partner = Nothing
  End Sub
  Private Sub Class_Terminate()
    terminated = terminated + 1
  End Sub
  Public Function Lening(Len_Id)
    Set Lening = Nothing
    If Len_Id = 0 Then Set Lening = HuidigeLening
    If Len_Id = 1 Then Set Lening = nieuwe
  End Function
  Public Function Persoon(nummer)
    Set Persoon = Nothing
    If nummer = 1 Then Set Persoon = aanvrager
    If nummer = 2 Then Set Persoon = partner
  End Function
  Public Sub VoegToeAanVoorstel(voorstel, Vrij_Id)
    Note "VoegToe(" & voorstel & "," & Vrij_Id & ")"
  End Sub
  Public Sub VerwijderUitVoorstel(voorstel, Vrij_Id, nul)
    Note "VerwijderUit(" & voorstel & "," & Vrij_Id & "," & nul & ")"
  End Sub
End Class

Class ApplicationHost
  Public Dossier : Public Uitgangspunten : Public Codetabellen : Public reports : Public lastReport
  Public replaceTrace
  Private Sub Class_Initialize()
    Set Dossier = New DossierHost
    Set Uitgangspunten = New UitgangspuntenHost
    Uitgangspunten.Leeftijd = 67
    Codetabellen = "tabellen"
    reports = 0 : lastReport = "" : replaceTrace = False
  End Sub
  Private Sub Class_Terminate()
    terminated = terminated + 1
  End Sub
  Public Property Get Hoofdvenster()
    Set Hoofdvenster = Nothing
  End Property
  Public Sub VulCombo(bron, tabel, lijst, code, leeg, keuze)
    Note "VulCombo(" & bron & "," & tabel & "," & code & "," & leeg & "," & VarType(keuze) & ")"
    lijst.AddItem "Alfa Bank"
    lijst.AddItem "Beta Verzekeringen", 2
    lijst.AddItem "Anders"
    If code = "AB" Then lijst.ListIndex = 0
    If code = "BV" Then lijst.ListIndex = 1
    If code = "ZZ" Then lijst.ListIndex = 2
  End Sub
  Public Function ZoekCode(bron, tabel, tekst)
    ZoekCode = ""
    If tekst = "Alfa Bank" Then ZoekCode = "AB"
    If tekst = "Beta Verzekeringen" Then ZoekCode = "BV"
    If tekst = "Anders" Then ZoekCode = "ZZ"
  End Function
  Public Sub ReportError(trace)
    reports = reports + 1
    lastReport = trace.ObjectName & "|" & trace.Caption & "|" & trace.Message & "|" & trace.ErrorNumber & "|" & _
                 trace.ErrorDescription & "|" & trace.ErrorSource
  End Sub
End Class

' A host with one column, number 1, of the loan of the current situation, and an applicant.
Function NewHost()
  Dim host, kolom
  Set host = New ApplicationHost
  Set kolom = New KolomHost
  host.Dossier.HuidigeLening.kolommen.Add "1", kolom
  Set host.Dossier.aanvrager = New PersoonHost
  host.Dossier.aanvrager.Naam = Array("J.", "van", "Dam")
  host.Dossier.aanvrager.Geboortedatum = DateSerial(1975, 12, 31)
  Set NewHost = host
End Function

' Answers message boxes, and keeps what they said.
Class Answerer
  Public answer : Public shown
  Public Function Message(title, text, style)
    shown = shown & title & "|" & text & "|" & style & ";"
    If Not IsEmpty(answer) Then Message = answer
  End Function
End Class

' Keeps what an editor told.
Class Listener
  Public texts : Public heights : Public changes
  Private Sub Class_Initialize()
    texts = "" : heights = 0 : changes = 0
  End Sub
  Public Sub RefreshTopDisplay(text)
    texts = texts & text & ";"
  End Sub
  Public Sub HeightChanged()
    heights = heights + 1
  End Sub
  Public Sub Changed()
    changes = changes + 1
  End Sub
End Class

' Checks

Dim checks, wrong
checks = 0
wrong = 0

Sub Same(ByVal what, ByVal expected, ByVal actual)
  checks = checks + 1
  If VarType(expected) = VarType(actual) Then
    If expected = actual Then Exit Sub
  ElseIf IsNumeric(expected) And IsNumeric(actual) And VarType(expected) <> vbString And VarType(actual) <> vbString Then
    If expected = actual Then Exit Sub
  End If
  wrong = wrong + 1
  WScript.Echo "WRONG " & what & ": expected " & expected & " (" & TypeName(expected) & "), found " & actual & _
               " (" & TypeName(actual) & ")"
End Sub

Sub Finish(expectedChecks)
  Same "number of checks", expectedChecks, checks
  If wrong = 0 Then WScript.Echo "every check passed: " & expectedChecks
End Sub
