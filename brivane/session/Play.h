#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <brivane/host/Export.h>
#include <brivane/hostkit/Host.h>
#include <brivane/session/document/BadInput.h>
#include <brivane/session/document/DescribedCase.h>
#include <brivane/session/play/LineSink.h>

/// Plays a session from a replay document on any host, without a screen: the real controls, the steps of a person, and
/// a transcript of what the host was asked, line by line as `vrijekolom-replay` prints it.
///
///     for (const std::string& line : session::Play(MakeMyHost, text)) std::cout << line << '\n';
///
/// brivane/session/Main.h makes a program of it. The case is the one that the factory brings, and so are the header
/// texts: what a document describes of both (`dossier`, `headers`) is refused, or passed over for who asks for that.
/// Everything else of a document applies: the date, the title, the screen, the faults of the host, what is logged, and
/// the steps with their answers.
namespace brivane::session {

/// Makes a host and plays a document on it; the sink, where there is one, is told each line as it happens. Of the host,
/// the application and the factories are used, and what it keeps is held.
///
/// Throws BadInput at what is wrong with the document: before the host is made, or, at a step that picks an entry or
/// names a row that is not there, after the lines up to that step. Fails with error 91 on a factory that brings no
/// application or no tracers, and with whatever the factory or the sink throws. What the controls report, and what the
/// host throws while they ask it, is part of the transcript and no failure.
BRIVANE_API void Play(const hostkit::HostFactory& factory, std::string_view document, const LineSink& sink,
                      DescribedCase described = DescribedCase::Refused);
/// The same; answers the transcript.
[[nodiscard]] BRIVANE_API std::vector<std::string> Play(const hostkit::HostFactory& factory, std::string_view document,
                                                        DescribedCase described = DescribedCase::Refused);

/// Reads and checks a document, and makes no host. Throws BadInput.
BRIVANE_API void Check(std::string_view document, DescribedCase described = DescribedCase::Refused);

}  // namespace brivane::session
