// The year-by-year form by itself, with the discount column that the editor does not ask for. It is linked into a
// machine of its own, otherwise as the one that is published, and no part of that.

#include <emscripten.h>

#include "web/element/Element.h"
#include "web/host/Adapters.h"
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/web/Turns.h>

namespace brivane::webelement {

/// Opens it on an amount object that was kept.
extern "C" EMSCRIPTEN_KEEPALIVE void brivane_bench_form(int page, int amount, int years) {
  web::RunTurn([=] {
    web::Toolkit& toolkit = Element::Find(page)->Toolkit();
    toolkit.Guard([&] {
      const auto session = std::make_shared<webhost::Session>(page, toolkit.Life());
      frmScenario form(toolkit);
      form.Invoeren(session->Adapt<webhost::BedragAdapter>(std::make_shared<const webhost::Kept>(page, amount)),
                    static_cast<std::int16_t>(years), 0, 0, false, true);
      form.ShowModal(nullptr);
    });
  });
}

}  // namespace brivane::webelement
