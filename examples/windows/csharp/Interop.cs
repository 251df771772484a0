// The interfaces of the component library, as its type library has them: with these no interop assembly need be made.
// The members stand in the order of the type library, by which they are called; none may be left out or moved.

using System;
using System.Runtime.InteropServices;

namespace Brivane.Interop
{
    public static class Classes
    {
        public const string VrijeKolom = "9e623786-eb13-493a-a455-fd19036b8e3e";
        public const string Toelichting = "d6a66be5-9b91-482b-84e8-32a27398f8de";
        public const string FrmScenario = "1f1df8a8-6fed-4b5e-bab9-9dec1780f802";
    }

    /// <summary>What a control is bound to. A binding that failed answers S_FALSE, which is no exception: ask this.</summary>
    [Guid("4c0b7f0e-1f2d-4a0a-9c61-3b0b6f7f5a21")]
    public enum Bindingstoestand
    {
        BindingNogNiet = 0,
        BindingGelukt = 1,
        BindingMislukt = 2,
        BindingLosgelaten = 3
    }

    [ComImport, Guid("d04d372a-057c-435b-9272-f24e5b182071"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IToelichting
    {
        [DispId(1)]
        void SetApplication([MarshalAs(UnmanagedType.IDispatch)] object Application,
                            [MarshalAs(UnmanagedType.IDispatch)] object Lening, short Vrij_Id);
        [DispId(2)]
        void Validation([MarshalAs(UnmanagedType.Struct)] ref object Cancel, [Optional] int ControleNr);
        uint BackColor { [DispId(-501)] get; [DispId(-501)] set; }
        string ProcedureTraceKlasse
        {
            [DispId(3)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(3)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        Bindingstoestand Toestand { [DispId(4)] get; }
    }

    [ComImport, Guid("bc77270d-3d67-481d-abf4-3dc2f2366db0"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IVrijeKolom
    {
        /// <summary>Binds the editor; with null it lets go of every object of the host.</summary>
        [DispId(1)]
        void SetApplication([MarshalAs(UnmanagedType.IDispatch)] object Application, short Len_Id, short Vrij_Id);
        /// <summary>Cancel is a Variant by reference: hand over a bool in an object, and it comes back true on a refusal.</summary>
        [DispId(2)]
        void Validation([MarshalAs(UnmanagedType.Struct)] ref object Cancel, [Optional] int ControleNr);
        uint BackColor { [DispId(-501)] get; [DispId(-501)] set; }
        bool BeeindigenZichtbaar
        {
            [DispId(3)] [return: MarshalAs(UnmanagedType.VariantBool)] get;
            [DispId(3)] [param: MarshalAs(UnmanagedType.VariantBool)] set;
        }
        IToelichting Toelichting { [DispId(4)] [return: MarshalAs(UnmanagedType.Interface)] get; }
        string ProcedureTraceKlasse
        {
            [DispId(5)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(5)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        string DossierControleKlasse
        {
            [DispId(6)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(6)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        Bindingstoestand Toestand { [DispId(7)] get; }
    }

    [ComImport, Guid("d0f3427e-6b8f-4272-b91d-7a01a3976222"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IfrmScenario
    {
        [DispId(1)]
        void Invoeren([MarshalAs(UnmanagedType.IDispatch)] object Scenario, short AantalJaar, int Labeltype, int Anv_Leeftijd,
                      [MarshalAs(UnmanagedType.VariantBool)] bool LooptijdExtra,
                      [MarshalAs(UnmanagedType.VariantBool)] bool In_RenteKorting, double Bd_MaxOpname);
        /// <summary>The property DisableJaar(Jr), which is written alone.</summary>
        [DispId(2)]
        void set_DisableJaar(short Jr, [MarshalAs(UnmanagedType.VariantBool)] bool NewValue);
        short SoortScenario { [DispId(3)] get; [DispId(3)] set; }
        uint BackColor { [DispId(-501)] get; [DispId(-501)] set; }
        /// <summary>Eigenaar is a window handle, an object with hWnd, or null.</summary>
        [DispId(4)]
        void Tonen([Optional, MarshalAs(UnmanagedType.Struct)] object Eigenaar);
    }

    /// <summary>The editor's events, which arrive on the thread that made it.</summary>
    [ComImport, Guid("96ad7658-ec15-4747-b2c1-a478a23e9f65"), InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface DVrijeKolomEvents
    {
        [DispId(1)]
        void RefreshTopDisplay([MarshalAs(UnmanagedType.BStr)] string Text);
        [DispId(2)]
        void HeightChanged();
    }

    [ComImport, Guid("9c9f9e0a-4dde-47a2-add6-78a21d8e8df0"), InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
    public interface DToelichtingEvents
    {
        [DispId(1)]
        void Changed();
    }

    /// <summary>The list that VulCombo fills. It is usable until VulCombo returns.</summary>
    [ComImport, Guid("e69fa292-69c4-4051-86a6-f7099cb4024f"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IKeuzelijst
    {
        [DispId(1)]
        void Clear();
        [DispId(2)]
        void AddItem([MarshalAs(UnmanagedType.BStr)] string Tekst, [Optional] int ItemData);
        int ListCount { [DispId(3)] get; }
        int ListIndex { [DispId(4)] get; [DispId(4)] set; }
        [DispId(5)]
        int get_ItemData(int Index);
        [DispId(6)] [return: MarshalAs(UnmanagedType.BStr)]
        string get_List(int Index);
        string Text { [DispId(7)] [return: MarshalAs(UnmanagedType.BStr)] get; }
    }

    /// <summary>The tracer that a control makes itself; ReportError is handed it with the error record in it.</summary>
    [ComImport, Guid("199125b5-d67a-4ff3-96ce-3b42de48dd4d"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IProcedureTrace
    {
        [DispId(1)]
        void EnterProcedure([MarshalAs(UnmanagedType.BStr)] string Procedure);
        [DispId(2)]
        void LeaveProcedure();
        [DispId(3)]
        void ErrorInProcedure([MarshalAs(UnmanagedType.BStr)] string Procedure);
        string ApplicationTitle
        {
            [DispId(4)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(4)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        string ObjectName
        {
            [DispId(5)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(5)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        string Caption
        {
            [DispId(6)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(6)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        string ObjectDescription
        {
            [DispId(7)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(7)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        string Message
        {
            [DispId(8)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(8)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        string ErrorNumber
        {
            [DispId(9)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(9)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        string ErrorDescription
        {
            [DispId(10)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(10)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
        string ErrorSource
        {
            [DispId(11)] [return: MarshalAs(UnmanagedType.BStr)] get;
            [DispId(11)] [param: MarshalAs(UnmanagedType.BStr)] set;
        }
    }
}
