#pragma once

#include <memory>
#include <string>

#include "host/MemoryHost.h"
#include <brivane/frame/Calendar.h>

namespace memory_host {

/// A column that costs an amount a month from 1 April 2031.
inline std::shared_ptr<VrijeKolomItem> Column(std::int16_t id, const std::string& name, double amount) {
  auto column = std::make_shared<VrijeKolomItem>();
  column->id = id;
  column->omschrijving = name;
  column->bedrag->basisbedrag = amount;
  column->aanvang = brivane::frame::MakeDate({2031, 4, 1});
  return column;
}

/// A client with two columns in the current situation, 1 and 2.
inline std::shared_ptr<Application> SampleCase() {
  auto client = std::make_shared<Persoon>();
  client->naam = {"J.", "van", "Dam"};
  client->geboren = brivane::frame::MakeDate({1975, 12, 31});
  auto application = std::make_shared<Application>();
  application->dossier->personen = {client};
  application->dossier->huidig->kolommen = {Column(1, "Vereniging", 12.5), Column(2, "Krant", 31)};
  return application;
}

}  // namespace memory_host
