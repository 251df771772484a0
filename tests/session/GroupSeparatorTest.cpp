#include <gtest/gtest.h>

#include <brivane/session/play/GroupSeparator.h>

namespace brivane::session {
namespace {

TEST(GroupSeparator, IsThatOfTheLanguageOrOfItsCountry) {
  struct Case {
    const char* locale;
    const char* separator;
  };
  for (const Case& c : {Case{"nl_NL", "."},
                        Case{"nl", "."},
                        Case{"de_DE.UTF-8", "."},
                        Case{"it_IT", "."},
                        Case{"es_ES", "."},
                        Case{"en_US", ","},
                        Case{"en-GB", ","},
                        Case{"zh_CN", ","},
                        Case{"ja_JP", ","},
                        Case{"ko_KR", ","},
                        Case{"he_IL", ","},
                        Case{"de_CH", "\u2019"},
                        Case{"fr_CH", "\u2019"},
                        Case{"it_CH", "\u2019"},
                        Case{"fr_FR", "\u202F"},
                        Case{"fr", "\u202F"},
                        Case{"sv_SE", "\u00A0"},
                        Case{"nb_NO", "\u00A0"},
                        Case{"fi_FI", "\u00A0"},
                        Case{"pl_PL", "\u00A0"},
                        Case{"cs_CZ", "\u00A0"},
                        Case{"", ""},
                        Case{"C", ""},
                        Case{"C.UTF-8", ""},
                        Case{"POSIX", ""}})
    EXPECT_EQ(GroupSeparator(c.locale), c.separator) << c.locale;
}

}  // namespace
}  // namespace brivane::session
