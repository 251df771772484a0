#include <gtest/gtest.h>

#include <memory>

#include <brivane/host/Error.h>

namespace brivane::host {
namespace {

TEST(Error, OfTheComponentDescribesItself) {
  struct Case {
    ErrorNumber number;
    int code;
    const char* description;
  };
  for (const Case& c :
       {Case{ErrorNumber::Overflow, 6, "Overflow"}, Case{ErrorNumber::SubscriptOutOfRange, 9, "Subscript out of range"},
        Case{ErrorNumber::TypeMismatch, 13, "Type mismatch"}, Case{ErrorNumber::ObjectMissing, 91, "Object missing"},
        Case{ErrorNumber::NoSuchElement, 340, "No such element of a control array"},
        Case{ErrorNumber::NoSuchListEntry, 381, "No such list entry"},
        Case{ErrorNumber::Foreign, 440, "Unexpected failure"}}) {
    const Error error(c.number);
    EXPECT_EQ(error.Number(), c.code);
    EXPECT_EQ(error.Description(), c.description);
    EXPECT_EQ(error.Source(), "BrivaneVrijeKolom");
    EXPECT_STREQ(error.what(), c.description);
  }
}

TEST(Error, OfAHostKeepsItsOwnWords) {
  const Error error(-2147467259, "geen verbinding", "Gastheer");
  EXPECT_EQ(error.Number(), -2147467259);
  EXPECT_EQ(error.Description(), "geen verbinding");
  EXPECT_EQ(error.Source(), "Gastheer");
  EXPECT_STREQ(error.what(), "geen verbinding");
}

TEST(Need, HandsBackWhatIsThereAndFailsWhereNothingIs) {
  const auto seven = std::make_shared<int>(7);
  EXPECT_EQ(Need(seven), 7);
  try {
    (void)Need(std::shared_ptr<int>());
    ADD_FAILURE() << "nothing was needed";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), 91);
  }
}

}  // namespace
}  // namespace brivane::host
