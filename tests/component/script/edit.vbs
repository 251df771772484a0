' Every kind of field, edited as a person would, is written into the script's records with the type that it has.

Dim relais, host, editor, deur, luisteraar, kolom, dag
Set relais = CreateObject("BrivaneProef.Relais")
Set host = NewHost()
Set kolom = host.Dossier.HuidigeLening.VrijeKolommen(1)
Set editor = relais.Maak("BrivaneVrijeKolom.VrijeKolom")
Set deur = relais.Deur(editor)
deur.Set "today", DateSerial(2026, 11, 21)
Set luisteraar = New Luisteraar
relais.Luister editor, luisteraar

editor.SetApplication host, 0, 1
Same "no failure of binding", 0, host.reports
Same "name of the applicant", "J. van Dam", deur.Read("optAanvrager(1)", "caption")
Same "laid out once", 1, luisteraar.heights
Same "nothing is written by binding", "", journal

' text
Same "text done", 0, deur.Perform("TxtOm", "enter", "Vereniging")
Same "text", "Vereniging", kolom.Omschrijving
Same "header text told", "K Vereniging;", luisteraar.texts

' amount
Same "amount done", 0, deur.Perform("TxtBd", "enter", 12.5)
Same "amount", 12.5, kolom.Bedrag.waarde
Same "amount is a double", vbDouble, VarType(kolom.Bedrag.waarde)

' date
dag = DateSerial(2031, 4, 1)
Same "date done", 0, deur.Perform("TxtDtAanvang", "enter", dag)
Same "date", dag, kolom.DatumAanvang
Same "date is a date", vbDate, VarType(kolom.DatumAanvang)

' whole numbers
deur.Perform "TxtAnJaar", "enter", 1
Same "years", 12, kolom.Looptijd
Same "duration has 32 bits", vbLong, VarType(kolom.Looptijd)
Same "end date follows", DateSerial(2032, 4, 1), deur.Read("TxtDtEind", "value")
deur.Perform "TxtAnMaand", "enter", 14
Same "years and months", 26, kolom.Looptijd
Same "carried to years", 2, deur.Read("TxtAnJaar", "value")
deur.Perform "TxtDtEind", "enter", DateSerial(2033, 4, 15)
Same "months between two dates", 24, kolom.Looptijd
Same "end date on the day of the start", DateSerial(2033, 4, 1), deur.Read("TxtDtEind", "value")

' list of the library
luisteraar.texts = ""
Same "list done", 0, deur.Perform("cboTermijn", "choose", "per jaar")
Same "term", 12, kolom.Termijn
Same "term has 16 bits", vbInteger, VarType(kolom.Termijn)
Same "other text told", "W Vereniging;", luisteraar.texts

' options and toggles
deur.Perform "optLast(2)", "select"
Same "burden", 2, kolom.CorrectieLast
Same "the fiscal option follows", 2, kolom.CorrectieFiscaal
deur.Perform "jnInkUitArbeid", "toggle", 2
deur.Perform "jnInDagloon", "toggle", 2
Same "income from work", True, kolom.InkomenUitArbeid
Same "day wage", True, kolom.InDagloon
Same "no partner to choose", 1, deur.Perform("optAanvrager(2)", "select")

' check box, and a list of the host
Same "nothing else was called", "Basisbedrag=12.5;", Replace(journal, ",", ".")
journal = ""
deur.Perform "chkProduct", "tick", 1
Same "product", True, kolom.IsProduct
Same "the host fills the list, one argument left out", "VulCombo(tabellen,MaatschappijType,,,10);", journal
Same "entries of the host", 3, deur.Read("cboMaatschappij", "count")
Same "a product without a kind is another one", 99, kolom.Productsoort
deur.Perform "cboMaatschappij", "choose", "Beta Verzekeringen"
Same "company code", "BV", kolom.Maatschappij
Same "company name", "Beta Verzekeringen", kolom.MaatschappijNaam
deur.Perform "cboMaatschappij", "choose", 2
deur.Perform "txtMaatschappij", "enter", "Gamma"
Same "other company", "ZZ Gamma", kolom.Maatschappij & " " & kolom.MaatschappijNaam
deur.Perform "cboProductsoort", "choose", "Krant"
Same "kind", 44, kolom.Productsoort
Same "a contract shows its expiry date", True, deur.Read("fraVervaldatum", "visible")
deur.Perform "txtVervaldatum", "enter", DateSerial(2035, 1, 31)
Same "expiry date", DateSerial(2035, 1, 31), kolom.Contractvervaldatum
deur.Perform "txtProductnaam", "enter", "Ochtendblad"
Same "product name", "Ochtendblad", kolom.Productnaam
deur.Perform "jnUwBemiddeling", "toggle", 1
Same "brokerage", False, kolom.UwBemiddeling

' proposals: an indexed property, and a call with two arguments
journal = ""
Same "proposals hidden", False, deur.Read("fraBeeindigen", "visible")
editor.BeeindigenZichtbaar = True
Same "proposals shown", True, deur.Read("fraBeeindigen", "visible")
deur.Perform "ChkVoorstel(2)", "tick", 1
Same "proposal", "Voorstel2=J;VoegToe(2,1);", journal

' the explanation inside the editor
deur.Perform "Toelichting.jnAO", "toggle", 1
Same "left out of disability", True, kolom.UitsluitenAO
deur.Perform "Toelichting.jnOverlijden", "toggle", 2
deur.Perform "Toelichting.TxtPcOvergang", "enter", 62.5
Same "percentage", 62.5, kolom.PercentageOvergang
Same "percentage is a single", vbSingle, VarType(kolom.PercentageOvergang)
deur.Perform "Toelichting.txtEinddatum", "enter", DateSerial(2040, 12, 31)
Same "end of the transition", DateSerial(2040, 12, 31), kolom.EinddatumOvergang
Same "age at the end", 65, kolom.EindleeftijdOvergang

Same "changed", True, deur.Read("", "changed")
Same "not filling", False, deur.Read("", "filling")
Same "no failure at all", 0, host.reports

relais.Zwijg
Set deur = Nothing
Set editor = Nothing
Same "unloaded", False, relais.Geladen

Finish 54
