#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <brivane/host/Error.h>
#include <brivane/host/model/Application.h>
#include <brivane/host/model/ErrorRecord.h>
#include <brivane/host/model/HostFactories.h>
#include <brivane/hostkit/Case.h>

namespace brivane::hostkit {

/// A host as the kit is given it: the two that every control is given, and what the host can do beyond that, as far as
/// it can.
struct Host {
  /// The application object, with the case of Case.h.
  std::shared_ptr<host::Application> application;
  /// What the controls make themselves.
  host::HostFactories factories;

  /// Makes the next write of a column's `Omschrijving` fail as the host's own store would fail, with this number,
  /// description and source.
  std::function<void(const host::Error&)> failNextWrite;
  /// What `ReportError` was told last, as the host shows or logs it: number and description; nothing when nothing was.
  std::function<std::optional<host::ErrorRecord>()> lastReport;
  /// The same case, read anew from where the host keeps it.
  std::function<std::shared_ptr<host::Application>()> reopen;
  /// What has to live as long as the application is used: a folder, a connection.
  std::shared_ptr<void> keeps;
};

/// Makes a host with the case of Case.h, as if nobody had used it yet. Called once for each check.
using HostFactory = std::function<Host()>;

/// Something that the host cannot do, or does otherwise on purpose: the name of a check, or of a check and one of its
/// values, as the report writes them ("VrijeKolomItem.Looptijd", "VrijeKolomItem.Omschrijving/long text"). It is left
/// out, and the report says so.
struct Exception {
  std::string what;  ///< the name, spelled exactly
  std::string why;   ///< for the report
};

/// An entry of the code table "MaatschappijType".
struct Company {
  std::string code;  ///< as VrijeKolomItem::Maatschappij holds it
  std::string text;  ///< as the list shows it, in UTF-8
};

/// What the kit is told of a host beside the host itself.
struct Options {
  /// What is left out, and why. A name that no check has changes nothing.
  std::vector<Exception> cannot;
  /// A company that the code table has.
  Company company{"AB", "Alfa Bank"};
  /// The entry for a company that is named in text; it comes after the other one.
  Company other{"ZZ", "Anders"};
};

}  // namespace brivane::hostkit
