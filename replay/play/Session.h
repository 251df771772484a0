#pragma once

#include <memory>

#include "dossier/model/Dossier.h"
#include "replay/document/Document.h"
#include "replay/play/Subject.h"
#include <brivane/session/play/Session.h>

namespace brivane::replay {

/// A host that is there already, with the case behind it.
struct LiveHost {
  std::shared_ptr<dossier::Dossier> dossier;
  std::shared_ptr<host::Application> application;
  host::HostFactories factories;
};

/// The host in memory with the case that a document starts from.
[[nodiscard]] LiveHost HostOf(const Document& document);

/// A session on a host of the project's own, whose case can be looked at:
///
///     const Document document = ReadDocument(text);
///     Session session(document, [](std::string_view line) { std::cout << line << '\n'; });
///     session.Run();
///
/// The document must outlive the session.
class Session final : public session::Session {
 public:
  /// On the toolkit in memory.
  Session(const Document& document, LineSink sink);
  Session(const Document& document, LineSink sink, MakeSubject make);
  /// On a host that is there already: the case that the document starts from is left alone.
  Session(const Document& document, LineSink sink, LiveHost host, MakeSubject make);

  /// The case as the session left it.
  [[nodiscard]] dossier::Dossier& Case() { return *case_; }

 private:
  std::shared_ptr<dossier::Dossier> case_;
};

}  // namespace brivane::replay
