// The manifest for use without registration, held to what registering writes.

#include "component/idl/Windows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "component/automation/Module.h"
#include "component/registration/Keys.h"

namespace brivane::component {
namespace {

std::string Narrow(const std::wstring& text) {
  std::string narrow;
  for (const wchar_t character : text) narrow += static_cast<char>(character);
  return narrow;
}

std::string Manifest() {
  std::ifstream file(BRIVANE_MANIFEST, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// What the manifest says, a line each in the words below.
std::set<std::string> SaidByTheManifest() {
  const std::string text = Manifest();
  const auto each = [&text](const char* pattern, auto&& take) {
    const std::regex expression(pattern);
    for (std::sregex_iterator found(text.begin(), text.end(), expression), end; found != end; ++found) take(*found);
  };
  std::set<std::string> said;
  each(
      R"re(<comClass clsid="([^"]*)" description="([^"]*)" threadingModel="([^"]*)"\s+tlbid="([^"]*)" progid="([^"]*)")re"
      R"re((\s+miscStatusContent="([^"]*)")?>\s+<progid>([^<]*)</progid>)re",
      [&](const std::smatch& found) {
        const std::string id = found.str(1);
        said.insert(id + " is " + found.str(2));
        said.insert(id + " lives in " + found.str(3));
        said.insert(id + " is described in " + found.str(4));
        said.insert(id + " has the name " + found.str(5));
        said.insert(id + " has the short name " + found.str(8));
        if (found[6].matched) said.insert(id + " has the status " + found.str(7));
      });
  each(R"re(<typelib tlbid="([^"]*)" version="([^"]*)")re",
       [&](const std::smatch& found) { said.insert(found.str(1) + " has the version " + found.str(2)); });
  each(
      R"re(<comInterfaceExternalProxyStub name="([^"]*)" iid="([^"]*)"\s+tlbid="([^"]*)" proxyStubClsid32="([^"]*)"/>)re",
      [&](const std::smatch& found) {
        said.insert(found.str(2) + " is " + found.str(1));
        said.insert(found.str(2) + " is described in " + found.str(3));
        said.insert(found.str(2) + " is carried by " + found.str(4));
      });
  return said;
}

/// The words that a manifest has for the bits of a control's status.
std::string StatusInWords(unsigned long bits) {
  const std::pair<unsigned long, const char*> words[]{{OLEMISC_RECOMPOSEONRESIZE, "recomposeonresize"},
                                                      {OLEMISC_CANTLINKINSIDE, "cantlinkinside"},
                                                      {OLEMISC_INSIDEOUT, "insideout"},
                                                      {OLEMISC_ACTIVATEWHENVISIBLE, "activatewhenvisible"},
                                                      {OLEMISC_SETCLIENTSITEFIRST, "setclientsitefirst"}};
  std::string text;
  for (const auto& [bit, word] : words) {
    if (bits & bit) text += (text.empty() ? "" : ",") + std::string(word);
    bits &= ~bit;
  }
  EXPECT_EQ(bits, 0U) << "a bit without a word";
  return text;
}

/// The same of what registering writes.
std::set<std::string> SaidByTheKeys() {
  std::set<std::string> said;
  for (const KeyValue& entry : ValuesFor(L"C:\\dir\\BrivaneVrijeKolom.dll")) {
    const std::string key = Narrow(entry.key);
    const std::string value = Narrow(entry.value);
    std::smatch parts;
    const auto is = [&](const char* pattern) { return std::regex_match(key, parts, std::regex(pattern)); };
    const auto say = [&](const char* what) { said.insert(parts.str(1) + what + value); };
    if (is(R"re((?:CLSID|Interface)\\([^\\]*))re")) say(" is ");
    if (is(R"re(CLSID\\([^\\]*)\\InprocServer32)re") && entry.name == L"ThreadingModel") say(" lives in ");
    if (is(R"re((?:CLSID|Interface)\\([^\\]*)\\TypeLib)re") && entry.name.empty()) say(" is described in ");
    if (is(R"re(CLSID\\([^\\]*)\\ProgID)re")) say(" has the name ");
    if (is(R"re(CLSID\\([^\\]*)\\VersionIndependentProgID)re")) say(" has the short name ");
    if (is(R"re(CLSID\\([^\\]*)\\MiscStatus\\1)re"))
      said.insert(parts.str(1) + " has the status " + StatusInWords(std::stoul(value)));
    if (is(R"re(TypeLib\\([^\\]*)\\([^\\]*))re")) said.insert(parts.str(1) + " has the version " + parts.str(2));
    if (is(R"re(Interface\\([^\\]*)\\ProxyStubClsid32)re")) say(" is carried by ");
  }
  return said;
}

std::set<std::string> Without(const std::set<std::string>& all, const std::set<std::string>& others) {
  std::set<std::string> rest;
  std::set_difference(all.begin(), all.end(), others.begin(), others.end(), std::inserter(rest, rest.end()));
  return rest;
}

TEST(ManifestTest, SaysWhatRegisteringWrites) {
  module::Attach(GetModuleHandleW(nullptr));
  const std::set<std::string> manifest = SaidByTheManifest();
  const std::set<std::string> keys = SaidByTheKeys();
  // Three classes of five lines, two of them controls; the type library; seven interfaces of three lines.
  EXPECT_EQ(keys.size(), 3U * 5 + 2 + 1 + 7 * 3);
  EXPECT_EQ(Without(keys, manifest), std::set<std::string>()) << "the manifest lacks it";
  EXPECT_EQ(Without(manifest, keys), std::set<std::string>()) << "the registry lacks it";
}

TEST(ManifestTest, HasTheVersionOfTheProject) {
  const std::string text = Manifest();
  EXPECT_NE(text.find("name=\"Brivane.VrijeKolom\" version=\"" BRIVANE_VERSION ".0\""), std::string::npos) << text;
}

}  // namespace
}  // namespace brivane::component
