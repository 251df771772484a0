' The host's check before it leaves the column: refused and passed, its argument handed back by reference.

Dim relais, host, editor, deur, antwoorder, kolom, tweede, cancel
Set relais = CreateObject("BrivaneProef.Relais")
Set host = NewHost()
Set kolom = host.Dossier.HuidigeLening.VrijeKolommen(1)
Set editor = relais.Maak("BrivaneVrijeKolom.VrijeKolom")
Set deur = relais.Deur(editor)
Set antwoorder = New Antwoorder
deur.Callback = antwoorder
editor.SetApplication host, 0, 1

cancel = False
editor.Validation cancel
Same "refused without a start date", True, cancel
Same "refused as a boolean", vbBoolean, VarType(cancel)
Same "message", "Ontbrekende invoer|Voer s.v.p. een aanvangsdatum in.|48;", antwoorder.shown
Same "bookkeeping of the proposals", "VerwijderUit(1,1,0);VerwijderUit(2,1,0);VerwijderUit(3,1,0);", journal

' refused already: nothing is asked
antwoorder.shown = ""
cancel = True
editor.Validation cancel
Same "stays refused", True, cancel
Same "nothing asked", "", antwoorder.shown

' one check alone
cancel = False
editor.Validation cancel, 2
Same "the end date alone is in order", False, cancel
editor.Validation cancel, 1
Same "the start date alone is not", True, cancel

' a value that is handed over instead of a variable
antwoorder.shown = ""
editor.Validation False, 1
Same "checked all the same", "Ontbrekende invoer|Voer s.v.p. een aanvangsdatum in.|48;", antwoorder.shown

' a refused edit
antwoorder.shown = ""
deur.Perform "TxtDtAanvang", "enter", DateSerial(2031, 4, 1)
Same "end before start refused", 2, deur.Perform("TxtDtEind", "enter", DateSerial(2031, 3, 1))
Same "its message", "Onjuiste invoer|De einddatum dient na de aanvangsdatum te liggen.|48;", antwoorder.shown
Same "nothing written", 0, kolom.Looptijd
Same "as typed", DateSerial(2031, 3, 1), deur.Read("TxtDtEind", "value")
deur.Perform "TxtDtEind", "enter", DateSerial(2031, 10, 1)
Same "written", 6, kolom.Looptijd

' passed, with the question whether to carry the changes over
Set tweede = New KolomHost
tweede.Id = 1
host.Dossier.nieuwe.kolommen.Add "1", tweede
antwoorder.shown = ""
antwoorder.answer = 6
journal = ""
cancel = False
editor.Validation cancel
Same "passed", False, cancel
Same "asked", "Wijzigingen overnemen|Wilt u de wijzigingen overnemen in de nieuwe situatie?|36;", antwoorder.shown
Same "taken out of the new situation", 0, host.Dossier.nieuwe.kolommen.Count
Same "and out of the proposals, then the bookkeeping", _
     "VerwijderVrijeKolom(1);VerwijderUit(1,1,0);VerwijderUit(2,1,0);VerwijderUit(3,1,0);" & _
     "VerwijderUit(1,1,0);VerwijderUit(2,1,0);VerwijderUit(3,1,0);", journal
Same "no longer changed", False, deur.Read("", "changed")

' the explanation's own check
cancel = False
deur.Perform "Toelichting.jnOverlijden", "toggle", 2
antwoorder.shown = ""
antwoorder.answer = Empty
editor.Toelichting.Validation cancel
Same "explanation refused", True, cancel
Same "its own message", "Onjuiste invoer|Overgangspercentage partner van 1% t/m 100% invullen.|48;", antwoorder.shown
Same "no failure", 0, host.reports

Set deur = Nothing
Set editor = Nothing
Same "unloaded", False, relais.Geladen

Finish 23
