// vrijekolom-replay: runs a scripted session on the reference host and prints its transcript.

#include "replay/document/Document.h"
#include "replay/play/Session.h"
#include "replay/tool/Help.h"
#include <brivane/session/CommandLine.h>

namespace {

using namespace brivane;

void Check(const std::string& document, const session::Request&) { (void)replay::ReadDocument(document); }

void Play(const std::string& text, const session::Request&, const session::LineSink& sink) {
  const replay::Document document = replay::ReadDocument(text);
  replay::Session(document, sink).Run();
}

}  // namespace

int main(int count, char** arguments) {
  return session::Run({.help = replay::HelpText,
                       .version = "vrijekolom-replay " BRIVANE_VERSION,
                       .takesOwnCase = false,
                       .check = Check,
                       .play = Play},
                      count, arguments);
}
