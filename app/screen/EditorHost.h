#pragma once

#include <functional>
#include <memory>

#include <brivane/host/model/Application.h>
#include <brivane/host/model/HostFactories.h>

namespace brivane::app {

/// What the window's editor is bound to: the application object, and the factories of the host's own classes.
struct EditorHost {
  std::shared_ptr<host::Application> application;
  host::HostFactories factories;
};

/// Puts something between an editor and its host that follows what passes.
using Instrument = std::function<EditorHost(EditorHost host)>;

}  // namespace brivane::app
