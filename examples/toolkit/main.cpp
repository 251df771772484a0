// The editor on a toolkit of one's own, which draws it as lines of text.
#include <iostream>
#include <memory>

#include "host/SampleCase.h"
#include "toolkit/TextToolkit.h"
#include <brivane/controls/Binding.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

using namespace brivane;

int main() {
  // They go in the reverse order: the control before its surface, the surface before the toolkit.
  text::Toolkit toolkit;
  const auto surface = toolkit.MakeSurface(vrijekolom::kOntwerp);
  controls::Binding binding(*surface);
  VrijeKolom editor(*surface, toolkit, memory_host::Factories());

  const auto application = memory_host::SampleCase();
  if (binding.Bind([&] { editor.SetApplication(application, 0, 1); }) != controls::BindingResult::Bound) return 1;
  auto& screen = controls::Surface::Of(*surface);
  screen.Find("TxtAnJaar")->Perform(controls::Enter{2.0});
  text::Draw(std::cout, screen);

  binding.Unbind([&] { editor.Unbind(); });
  text::Draw(std::cout, screen);
  return application->dossier->huidig->kolommen.front()->looptijd == 24 ? 0 : 1;
}
