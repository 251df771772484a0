// A window of Windows Forms with the editor in it. README.md tells how it is compiled and started.

using System;
using System.Drawing;
using System.Runtime.InteropServices;
using System.Runtime.InteropServices.ComTypes;
using System.Windows.Forms;
using Brivane.Interop;

namespace Brivane.Voorbeeld
{
    /// <summary>The editor as a control of Windows Forms.</summary>
    public class Editor : AxHost, DVrijeKolomEvents
    {
        private IConnectionPoint gebeurtenissen;
        private int luisteraar;

        public Editor() : base(Classes.VrijeKolom) { }

        public event Action<string> KopregelGewijzigd;
        public event Action HoogteGewijzigd;

        public IVrijeKolom Kolom { get { return (IVrijeKolom)GetOcx(); } }

        void DVrijeKolomEvents.RefreshTopDisplay(string tekst)
        {
            if (KopregelGewijzigd != null) KopregelGewijzigd(tekst);
        }

        void DVrijeKolomEvents.HeightChanged()
        {
            if (HoogteGewijzigd != null) HoogteGewijzigd();
        }

        protected override void CreateSink()
        {
            var bronnen = (IConnectionPointContainer)GetOcx();
            Guid soort = typeof(DVrijeKolomEvents).GUID;
            bronnen.FindConnectionPoint(ref soort, out gebeurtenissen);
            gebeurtenissen.Advise(this, out luisteraar);
        }

        protected override void DetachSink()
        {
            if (gebeurtenissen == null) return;
            gebeurtenissen.Unadvise(luisteraar);
            Marshal.ReleaseComObject(gebeurtenissen);
            gebeurtenissen = null;
        }
    }

    public class Venster : Form
    {
        private readonly Label kop = new Label { Dock = DockStyle.Top };
        private readonly Editor editor = new Editor { Dock = DockStyle.Fill };

        public Venster()
        {
            Text = "Voorbeeld";
            ClientSize = new Size(900, 660);
            Controls.Add(editor);
            Controls.Add(kop);
            editor.KopregelGewijzigd += tekst => kop.Text = tekst;
        }

        protected override void OnShown(EventArgs e)
        {
            base.OnShown(e);
            var application = new Application(Handle);
            application.Fout += fout => MessageBox.Show(this, fout);
            editor.Kolom.SetApplication(application, 0, 1);  // column 1 of the current situation
            if (editor.Kolom.Toestand != Bindingstoestand.BindingGelukt) Text += " (geen kolom)";
        }

        protected override void OnFormClosing(FormClosingEventArgs e)
        {
            base.OnFormClosing(e);
            object cancel = false;
            editor.Kolom.Validation(ref cancel, 0);
            e.Cancel = (bool)cancel;  // something does not pass: stay
            if (!e.Cancel) editor.Kolom.SetApplication(null, 0, 0);
        }
    }

    public static class Program
    {
        [STAThread]
        public static void Main()
        {
            System.Windows.Forms.Application.EnableVisualStyles();
            using (var venster = new Venster()) System.Windows.Forms.Application.Run(venster);
        }
    }
}
