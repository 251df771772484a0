#pragma once

#include <memory>

#include "app/screen/DossierScreen.h"
#include "replay/play/Subject.h"

namespace brivane::app {

/// The editor in the program's window, as what a session acts on.
///
/// Controls are acted on by the doors that a person's keys and mouse go through. What a host does to the editor, the
/// window does: a binding goes to that column, which asks the one on the screen first, and a check of the editor is
/// the window's question whether the column may be left. The window lays its editor out and opens its forms itself:
/// a step that sizes, or that shows a form on its own, fails.
///
/// `screen` shows a file whose editor's host is that of the session, and may go before the subject.
[[nodiscard]] std::unique_ptr<replay::Subject> MakeWindowSubject(DossierScreen& screen,
                                                                 const replay::Document& document,
                                                                 replay::Audience& audience);

}  // namespace brivane::app
