#pragma once

#include <brivane/host/Export.h>
#include <brivane/hostkit/Host.h>

namespace brivane::session {

/// The whole of a program that plays documents on a host, as `vrijekolom-replay` plays them on its own:
///
///     int main(int count, char** arguments) { return brivane::session::Main(count, arguments, MakeMyHost); }
///
/// It takes a file, or - for standard input, and prints the transcript; `--help` tells of its options. Answers the exit
/// code: 0 when the session ran, 1 when the transcript could not be written, and 2, with one line on standard error,
/// when the document or the host cannot be used. Lets nothing through.
[[nodiscard]] BRIVANE_API int Main(int count, char** arguments, const hostkit::HostFactory& factory);

}  // namespace brivane::session
