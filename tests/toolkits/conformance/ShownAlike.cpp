#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/toolkits/conformance/Conformance.h"
#include "tests/toolkits/conformance/Scenes.h"
#include <brivane/controls/Pixels.h>
#include <brivane/controls/entry/Content.h>

/// What a toolkit really made of the editor and the form, held against one text for all toolkits: kind, name,
/// caption, state, and the place in pixels at 96 dots per inch.
///
/// After a change of a design the texts are written anew by running a test program with SHOWN_WRITE=1; what
/// changed in them is to be read.
namespace brivane::test {

namespace {

const char* KindName(host::Kind kind) {
  switch (kind) {
    case host::Kind::Frame: return "Frame";
    case host::Kind::Label: return "Label";
    case host::Kind::TextBox: return "TextBox";
    case host::Kind::JaNee: return "JaNee";
    case host::Kind::Hint: return "Hint";
    case host::Kind::OptionButton: return "OptionButton";
    case host::Kind::CheckBox: return "CheckBox";
    case host::Kind::ListBox: return "ListBox";
    case host::Kind::Button: return "Button";
    case host::Kind::ListView: return "ListView";
    case host::Kind::Surface: break;
  }
  return "Surface";
}

std::string ValueText(const controls::DumpValue& value, frame::Format format) {
  const auto content = [&](const controls::BoxValue& held) { return controls::ShowContent(held, format); };
  if (const auto* selected = std::get_if<bool>(&value)) return *selected ? "selected" : "";
  if (const auto* number = std::get_if<int>(&value)) return std::to_string(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* amount = std::get_if<double>(&value)) return content(*amount);
  if (const auto* date = std::get_if<host::Date>(&value)) return content(*date);
  return {};
}

std::string ListText(const controls::ControlDump::ListContent& list) {
  std::string text = "entry " + std::to_string(list.index) + " of";
  for (const auto& entry : list.entries) text += " [" + entry.text + "]";
  return text;
}

std::string ListViewText(const controls::ControlDump::ListViewContent& list) {
  std::string text = "row " + std::to_string(list.selected) + " of";
  for (const auto& column : list.columns)
    text += " <" + column.heading + " " + std::to_string(controls::Pixel(column.width.value, 1)) + ">";
  for (const auto& item : list.items) {
    text += " [";
    for (const auto& cell : item.cells) text += (cell.bold ? "*" : "") + cell.text + "|";
    text += "]";
  }
  return text;
}

std::string Line(const controls::ControlDump& dump, frame::Format format) {
  const controls::PixelPlace place = controls::Pixels(dump.place, 1);
  std::ostringstream line;
  line << KindName(dump.kind) << ' ' << dump.name << " at " << place.left << ',' << place.top << " of " << place.width
       << 'x' << place.height;
  if (!dump.visible) line << " hidden";
  if (!dump.enabled) line << " disabled";
  if (dump.locked.value_or(false)) line << " locked";
  if (dump.caption) line << " \"" << *dump.caption << '"';
  if (const std::string value = ValueText(dump.value, format); !value.empty()) line << " = " << value;
  if (dump.list) line << " = " << ListText(*dump.list);
  if (dump.listView) line << " = " << ListViewText(*dump.listView);
  line << '\n';
  return line.str();
}

class ShownAlike : public testing::TestWithParam<Subject> {
 protected:
  [[nodiscard]] std::string TextOf(controls::Surface& surface) const {
    std::string text;
    for (const controls::ControlDump& dump : subject_->Shown(surface)) {
      std::string_view name = dump.name;
      int index = frame::kNoIndex;
      if (const std::size_t bracket = name.find('('); bracket != std::string_view::npos) {
        index = std::stoi(std::string(name.substr(bracket + 1)));
        name = name.substr(0, bracket);
      }
      text += Line(dump, surface.Find(name, index)->Row().format);
    }
    return text;
  }

  static void Hold(std::string_view scene, const std::string& shown) {
    const std::filesystem::path path = std::filesystem::path(SHOWN_TEXTS) / (std::string(scene) + ".txt");
    if (std::getenv("SHOWN_WRITE") != nullptr) std::ofstream(path, std::ios::binary) << shown;
    std::ifstream file(path, std::ios::binary);
    std::stringstream held;
    held << file.rdbuf();
    ASSERT_FALSE(held.str().empty()) << path;
    std::istringstream heldLines(held.str());
    std::istringstream shownLines(shown);
    std::string expected;
    std::string actual;
    while (std::getline(heldLines, expected)) {
      ASSERT_TRUE(std::getline(shownLines, actual)) << "missing: " << expected;
      EXPECT_EQ(actual, expected);
    }
    EXPECT_FALSE(std::getline(shownLines, actual)) << "too much: " << actual;
  }

  std::unique_ptr<ToolkitUnderTest> subject_ = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(Toolkit, ShownAlike, testing::Values(Subjects().front()), SubjectName);

TEST_P(ShownAlike, TheEditorIsShownAsEveryToolkitShowsIt) {
  for (const EditorState state :
       {EditorState::Designed, EditorState::Recurring, EditorState::Product, EditorState::Transition}) {
    SCOPED_TRACE(NameOf(state));
    EditorScene scene(subject_->Toolkit(), state);
    auto& surface = controls::Surface::Of(scene.Surface());
    subject_->Show(surface);
    subject_->Settle();
    Hold(NameOf(state), TextOf(surface));
  }
}

TEST_P(ShownAlike, TheFormIsShownAsEveryToolkitShowsIt) {
  for (const FormState state :
       {FormState::Amounts, FormState::PercentagesAndDiscount, FormState::Growth, FormState::Bridging}) {
    SCOPED_TRACE(NameOf(state));
    bool opened = false;
    subject_->WhileOpen([&](controls::Form& form) {
      opened = true;
      subject_->Settle();
      Hold(NameOf(state), TextOf(form));
    });
    ShowForm(subject_->Toolkit(), state, nullptr);
    EXPECT_TRUE(opened);
  }
}

}  // namespace

}  // namespace brivane::test
