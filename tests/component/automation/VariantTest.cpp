#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "component/automation/Variant.h"
#include <brivane/host/Error.h>

namespace brivane::component {
namespace {

std::int32_t NumberOf(const std::function<void()>& body) {
  try {
    body();
  } catch (const host::Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(VariantTest, EachTypeOfTheModelKeepsItsOwnTypeAndValue) {
  EXPECT_EQ(Variant(true).Type(), VT_BOOL);
  EXPECT_EQ(Variant(true).Raw().boolVal, VARIANT_TRUE);
  EXPECT_EQ(Variant(std::int16_t{-7}).Type(), VT_I2);
  EXPECT_EQ(As<std::int16_t>(Variant(std::int16_t{-7})), -7);
  EXPECT_EQ(Variant(std::int32_t{70000}).Type(), VT_I4);
  EXPECT_EQ(As<std::int32_t>(Variant(std::int32_t{70000})), 70000);
  EXPECT_EQ(Variant(62.5F).Type(), VT_R4);
  EXPECT_EQ(As<float>(Variant(62.5F)), 62.5F);
  EXPECT_EQ(Variant(0.1).Type(), VT_R8);
  EXPECT_EQ(As<double>(Variant(0.1)), 0.1);
  EXPECT_EQ(Variant(host::Date(36526)).Type(), VT_DATE);
  EXPECT_EQ(As<host::Date>(Variant(host::Date(36526))), host::Date(36526));
  EXPECT_EQ(Variant("één €").Type(), VT_BSTR);
  EXPECT_EQ(As<std::string>(Variant("één €")), "één €");
}

TEST(VariantTest, NothingIsTheZeroOfItsType) {
  const Variant empty;
  EXPECT_FALSE(As<bool>(empty));
  EXPECT_EQ(As<std::int16_t>(empty), 0);
  EXPECT_EQ(As<double>(empty), 0);
  EXPECT_EQ(As<std::string>(empty), "");
  EXPECT_TRUE(As<host::Date>(empty).IsNone());
  EXPECT_FALSE(As<ComPtr<IDispatch>>(empty));
  Variant noText;
  noText.Raw().vt = VT_BSTR;
  noText.Raw().bstrVal = nullptr;
  EXPECT_EQ(As<std::string>(noText), "");
}

TEST(VariantTest, WholeNumbersRoundHalfToEven) {
  EXPECT_EQ(As<std::int16_t>(Variant(2.5)), 2);
  EXPECT_EQ(As<std::int16_t>(Variant(3.5)), 4);
  EXPECT_EQ(As<std::int32_t>(Variant(-2.5)), -2);
}

TEST(VariantTest, AValueOutOfRangeIsAnOverflow) {
  EXPECT_EQ(NumberOf([] { (void)As<std::int16_t>(Variant(std::int32_t{32768})); }), 6);
  EXPECT_EQ(As<std::int16_t>(Variant(std::int32_t{32767})), 32767);
  EXPECT_EQ(NumberOf([] { (void)As<std::int32_t>(Variant(2147483648.0)); }), 6);
  Variant date;
  date.Raw().vt = VT_DATE;
  date.Raw().date = 2958466;  // the day after 31 December 9999
  EXPECT_EQ(NumberOf([&] { (void)As<host::Date>(date); }), 6);
}

TEST(VariantTest, AValueOfAnotherKindIsATypeMismatch) {
  EXPECT_EQ(NumberOf([] { (void)As<std::int16_t>(Variant("geen getal")); }), 13);
  EXPECT_EQ(NumberOf([] { (void)As<ComPtr<IDispatch>>(Variant("geen object")); }), 13);
  EXPECT_EQ(NumberOf([] { (void)As<std::vector<Variant>>(Variant("geen lijst")); }), 13);
}

TEST(VariantTest, ADateLosesItsTimeTowardsTheDayItIsOn) {
  Variant date;
  date.Raw().vt = VT_DATE;
  date.Raw().date = 36526.75;
  EXPECT_EQ(As<host::Date>(date), host::Date(36526));
  // Before the zero date the whole part is the day, and the rest counts forward in that day.
  date.Raw().date = -10.25;
  EXPECT_EQ(As<host::Date>(date), host::Date(-10));
}

TEST(VariantTest, AReferenceIsReadThrough) {
  VARIANT_BOOL flag = VARIANT_TRUE;
  VARIANT reference{};
  reference.vt = VT_BYREF | VT_BOOL;
  reference.pboolVal = &flag;
  EXPECT_TRUE(As<bool>(reference));
  const Variant copy = Variant::CopyOf(reference);
  flag = VARIANT_FALSE;
  EXPECT_EQ(copy.Type(), VT_BOOL);
  EXPECT_TRUE(As<bool>(copy));
}

TEST(VariantTest, ArraysOfAnyElementAndBoundAreRead) {
  const std::array names{Variant("J."), Variant("van"), Variant("Dam")};
  const auto read = As<std::vector<Variant>>(Variant(std::span<const Variant>(names)));
  ASSERT_EQ(read.size(), 3U);
  EXPECT_EQ(As<std::string>(read[2]), "Dam");

  Variant texts;
  SAFEARRAYBOUND bound{2, 1};
  texts.Raw().parray = SafeArrayCreate(VT_BSTR, 1, &bound);
  texts.Raw().vt = VT_ARRAY | VT_BSTR;
  for (LONG i = 1; i <= 2; ++i) {
    const BSTR text = SysAllocString(i == 1 ? L"een" : L"twee");
    SafeArrayPutElement(texts.Raw().parray, &i, text);
    SysFreeString(text);
  }
  const auto second = As<std::vector<Variant>>(texts);
  ASSERT_EQ(second.size(), 2U);
  EXPECT_EQ(As<std::string>(second[0]), "een");
  EXPECT_EQ(As<std::string>(second[1]), "twee");
}

TEST(VariantTest, AnArgumentThatIsLeftOutIsKnown) {
  EXPECT_TRUE(IsMissing(Variant::Missing().Raw()));
  EXPECT_FALSE(IsMissing(Variant().Raw()));
}

}  // namespace
}  // namespace brivane::component
