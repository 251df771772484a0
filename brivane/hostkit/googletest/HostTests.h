#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include <brivane/hostkit/Check.h>

/// The checks of a host as GoogleTest tests, one each. They are there when the program starts:
///
///     #include <brivane/hostkit/googletest/HostTests.h>
///
///     static const bool registered = brivane::hostkit::RegisterHostTests("MyHost", [] { return MakeMyHost(); });
///
/// A check that the host says it cannot do is a test that is skipped.
namespace brivane::hostkit {

/// One check as a test; RegisterHostTests makes them.
class HostTest : public testing::Test {
 public:
  /// The check of that name, spelled exactly.
  HostTest(HostFactory factory, Options options, std::string check)
      : factory_(std::move(factory)), options_(std::move(options)), check_(std::move(check)) {}

  /// Fails once for each finding.
  void TestBody() override {
    const Report report = Check(factory_, options_, check_);
    for (const Finding& finding : report.findings) ADD_FAILURE() << Text(finding);
    for (const Exception& exception : report.leftOut)
      if (exception.what == check_ && report.Ok()) GTEST_SKIP() << exception.what << ": " << exception.why;
  }

 private:
  HostFactory factory_;
  Options options_;
  std::string check_;
};

/// Registers a test of each check in a suite of that name, before the tests run. Answers true, to be called where the
/// program starts.
inline bool RegisterHostTests(const std::string& suite, const HostFactory& factory, const Options& options = {}) {
  for (const std::string_view check : Checks()) {
    std::string name;
    for (const char character : check)
      name += character == '.' || character == ' ' || character == ':' || character == '-' ? '_' : character;
    testing::RegisterTest(
        suite.c_str(), name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
        [factory, options, check]() -> testing::Test* { return new HostTest(factory, options, std::string(check)); });
  }
  return true;
}

}  // namespace brivane::hostkit
