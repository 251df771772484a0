/** The tracer of a host that gives none of its own: it keeps the error record that ReportError is given. */
export class ProcedureTrace {
  ApplicationTitle = '';
  ObjectName = '';
  Caption = '';
  ObjectDescription = '';
  Message = '';
  ErrorNumber = '';
  ErrorDescription = '';
  ErrorSource = '';

  EnterProcedure() {}
  LeaveProcedure() {}
  ErrorInProcedure() {}
}

/** The check of a host that gives none of its own. */
export class DossierControle {
  Controleer() {}
}
