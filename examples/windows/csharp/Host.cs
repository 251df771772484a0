// The host's model: one client with one loan and one free column. The library finds the members by name, so that plain
// classes do; docs/windows.md lists what each must have. Their types are those that the library reads and writes.

using System;
using System.Collections.Generic;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using Brivane.Interop;

namespace Brivane.Voorbeeld
{
    [ComVisible(true), ClassInterface(ClassInterfaceType.AutoDispatch)]
    public class Periode
    {
        public short Maand { get; set; }
        public double Bedrag { get; set; }
        public double Percentage { get; set; }
        public double Korting { get; set; }
        public bool Eenmalig { get; set; }
    }

    [ComVisible(true), ClassInterface(ClassInterfaceType.AutoDispatch)]
    public class BedragObject
    {
        private readonly List<Periode> periodes = new List<Periode>();

        public string Naam { get { return "Vrije kolom"; } }
        public short Invoersoort { get { return 1; } }
        public double Basisbedrag { get; set; }
        public double Bedrag { get; set; }

        // Positions count from 1; null past the last.
        public Periode Periode(short positie) { return positie >= 1 && positie <= periodes.Count ? periodes[positie - 1] : null; }
        public short NieuwePeriode()
        {
            periodes.Add(new Periode());
            return (short)periodes.Count;
        }
        public void VerwijderPeriode(short positie) { periodes.RemoveAt(positie - 1); }
    }

    [ComVisible(true), ClassInterface(ClassInterfaceType.AutoDispatch)]
    public class Kolom
    {
        private readonly string[] voorstellen = { "N", "N", "N" };

        public Kolom()
        {
            CorrectieLast = CorrectieFiscaal = HeffingBij = Termijn = 1;
            Omschrijving = "Vereniging";
            Maatschappij = MaatschappijNaam = ProductsoortOmschrijving = Productnaam = "";
            Bedrag = new BedragObject { Basisbedrag = 12.5, Bedrag = 12.5 };
            DatumAanvang = new DateTime(2031, 4, 1);
            Looptijd = 60;
            Contractvervaldatum = EinddatumOvergang = Datum.Geen;
        }

        public short Id { get { return 1; } }
        public short CorrectieLast { get; set; }
        public short CorrectieFiscaal { get; set; }
        public short HeffingBij { get; set; }
        public string Omschrijving { get; set; }
        public BedragObject Bedrag { get; private set; }
        public short Termijn { get; set; }
        public bool InkomenUitArbeid { get; set; }
        public bool InDagloon { get; set; }
        public DateTime DatumAanvang { get; set; }
        public int Looptijd { get; set; }
        public DateTime Contractvervaldatum { get; set; }
        public bool IsProduct { get; set; }
        public string Maatschappij { get; set; }
        public string MaatschappijNaam { get; set; }
        public short Productsoort { get; set; }
        public string ProductsoortOmschrijving { get; set; }
        public string Productnaam { get; set; }
        public bool UwBemiddeling { get; set; }
        public bool UitsluitenAO { get; set; }
        public bool UitsluitenWW { get; set; }
        public bool UitsluitenLangleven { get; set; }
        public bool ScenarioOverlijden { get; set; }
        public float PercentageOvergang { get; set; }
        public DateTime EinddatumOvergang { get; set; }
        public short EindleeftijdOvergang { get; set; }

        // A property with an index: C# has one of them to a class, and this gives it its name.
        [IndexerName("Voorstel")]
        public string this[short nummer]
        {
            get { return voorstellen[nummer - 1]; }
            set { voorstellen[nummer - 1] = value; }
        }

        // The two texts that a host makes of a column for its own lists and headers.
        public string Weergave { get { return Omschrijving; } }
        public string Kopregel { get { return Omschrijving; } }
    }

    [ComVisible(true), ClassInterface(ClassInterfaceType.AutoDispatch)]
    public class Lening
    {
        private readonly List<Kolom> kolommen = new List<Kolom> { new Kolom() };

        public Kolom VrijeKolommen(short vrijId) { return kolommen.Find(kolom => kolom.Id == vrijId); }
        public Kolom VrijeKolom(short vrijId) { return VrijeKolommen(vrijId); }
        public Kolom VrijeKolomOp(short positie) { return positie >= 1 && positie <= kolommen.Count ? kolommen[positie - 1] : null; }
        public void VerwijderVrijeKolom(short positie) { kolommen.RemoveAt(positie - 1); }
    }

    [ComVisible(true), ClassInterface(ClassInterfaceType.AutoDispatch)]
    public class Persoon
    {
        public string[] Naam { get { return new[] { "J.", "van", "Dam" }; } }
        public DateTime Geboortedatum { get { return new DateTime(1975, 12, 31); } }
    }

    [ComVisible(true), ClassInterface(ClassInterfaceType.AutoDispatch)]
    public class Dossier
    {
        private readonly Lening huidige = new Lening();
        private readonly Persoon aanvrager = new Persoon();

        public Lening HuidigeLening { get { return huidige; } }
        public Lening Lening(short lenId) { return lenId == 0 ? huidige : null; }
        public Persoon Persoon(short nummer) { return nummer == 1 ? aanvrager : null; }
        public void VoegToeAanVoorstel(short voorstel, short vrijId) { }
        public void VerwijderUitVoorstel(short voorstel, short vrijId, short nul) { }
    }

    [ComVisible(true), ClassInterface(ClassInterfaceType.AutoDispatch)]
    public class Uitgangspunten
    {
        public short Leeftijd { get { return 67; } }
    }

    [ComVisible(true), ClassInterface(ClassInterfaceType.AutoDispatch)]
    public class Application
    {
        private static readonly string[,] Maatschappijen = { { "AB", "Alfa Bank" }, { "ZZ", "Anders" } };
        private readonly IntPtr venster;
        private readonly Dossier dossier = new Dossier();
        private readonly Uitgangspunten uitgangspunten = new Uitgangspunten();

        public Application(IntPtr venster) { this.venster = venster; }

        public Dossier Dossier { get { return dossier; } }
        public Uitgangspunten Uitgangspunten { get { return uitgangspunten; } }
        public object Codetabellen { get { return null; } }
        // A window handle has 32 significant bits, also in a 64-bit program.
        public int Hoofdvenster { get { return (int)venster.ToInt64(); } }

        /// <summary>What went wrong in the editor, once for each time. In order to replace the tracer, put another one in.</summary>
        public event Action<string> Fout;

        // The list is lent for this call; its wrapper is let go of here, and not when the collector comes by.
        public void VulCombo(object bron, string tabel, object lijst, string code, string leeg, [Optional] object keuze)
        {
            var keuzelijst = (IKeuzelijst)lijst;
            try
            {
                for (int i = 0; i < Maatschappijen.GetLength(0); ++i)
                {
                    keuzelijst.AddItem(Maatschappijen[i, 1], 0);
                    if (Maatschappijen[i, 0] == code) keuzelijst.ListIndex = i;
                }
            }
            finally
            {
                Marshal.ReleaseComObject(keuzelijst);
            }
        }

        public string ZoekCode(object bron, string tabel, string tekst)
        {
            for (int i = 0; i < Maatschappijen.GetLength(0); ++i)
                if (Maatschappijen[i, 1] == tekst) return Maatschappijen[i, 0];
            return "";
        }

        public void ReportError([MarshalAs(UnmanagedType.IDispatch)] ref object trace)
        {
            var record = (IProcedureTrace)trace;
            if (Fout != null) Fout(record.ErrorNumber + ": " + record.ErrorDescription);
        }
    }

    public static class Datum
    {
        /// <summary>No date: the number 0, 30 December 1899. The library writes it, and takes default(DateTime) for it too.</summary>
        public static readonly DateTime Geen = DateTime.FromOADate(0);
    }
}
