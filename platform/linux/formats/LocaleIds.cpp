#include "platform/linux/formats/LocaleIds.h"

#include <algorithm>
#include <array>
#include <string>

namespace ostrelum::linux_platform {
namespace {

struct LocaleRow {
    std::string_view name;
    std::uint32_t id;
};

// clang-format off: one row, one line.
/// MS-LCID, Windows Language Code Identifier Reference, section 2.2.
constexpr std::array<LocaleRow, 108> locales{{
    {"af_ZA", 1078},  {"am_ET", 1118},  {"ar_AE", 14337},      {"ar_EG", 3073}, {"ar_SA", 1025},
    {"az_AZ", 1068},  {"be_BY", 1059},  {"bg_BG", 1026},       {"bn_BD", 2117}, {"bn_IN", 1093},
    {"bs_BA", 5146},  {"ca_ES", 1027},  {"cs_CZ", 1029},       {"cy_GB", 1106}, {"da_DK", 1030},
    {"de_AT", 3079},  {"de_CH", 2055},  {"de_DE", 1031},       {"de_LI", 5127}, {"de_LU", 4103},
    {"el_GR", 1032},  {"en_AU", 3081},  {"en_CA", 4105},       {"en_GB", 2057}, {"en_IE", 6153},
    {"en_IN", 16393}, {"en_NZ", 5129},  {"en_SG", 18441},      {"en_US", 1033}, {"en_ZA", 7177},
    {"es_AR", 11274}, {"es_CL", 13322}, {"es_CO", 9226},       {"es_ES", 3082}, {"es_MX", 2058},
    {"es_PE", 10250}, {"es_US", 21514}, {"es_VE", 8202},       {"et_EE", 1061}, {"eu_ES", 1069},
    {"fa_IR", 1065},  {"fi_FI", 1035},  {"fil_PH", 1124},      {"fr_BE", 2060}, {"fr_CA", 3084},
    {"fr_CH", 4108},  {"fr_FR", 1036},  {"fr_LU", 5132},       {"ga_IE", 2108}, {"gl_ES", 1110},
    {"gu_IN", 1095},  {"he_IL", 1037},  {"hi_IN", 1081},       {"hr_HR", 1050}, {"hu_HU", 1038},
    {"hy_AM", 1067},  {"id_ID", 1057},  {"is_IS", 1039},       {"it_CH", 2064}, {"it_IT", 1040},
    {"ja_JP", 1041},  {"ka_GE", 1079},  {"kk_KZ", 1087},       {"km_KH", 1107}, {"kn_IN", 1099},
    {"ko_KR", 1042},  {"lo_LA", 1108},  {"lt_LT", 1063},       {"lv_LV", 1062}, {"mk_MK", 1071},
    {"ml_IN", 1100},  {"mn_MN", 1104},  {"mr_IN", 1102},       {"ms_MY", 1086}, {"my_MM", 1109},
    {"nb_NO", 1044},  {"ne_NP", 1121},  {"nl_BE", 2067},       {"nl_NL", 1043}, {"nn_NO", 2068},
    {"no_NO", 1044},  {"pa_IN", 1094},  {"pl_PL", 1045},       {"pt_BR", 1046}, {"pt_PT", 2070},
    {"ro_RO", 1048},  {"ru_RU", 1049},  {"si_LK", 1115},       {"sk_SK", 1051}, {"sl_SI", 1060},
    {"sq_AL", 1052},  {"sr_RS", 10266}, {"sr_RS@latin", 9242}, {"sv_FI", 2077}, {"sv_SE", 1053},
    {"sw_KE", 1089},  {"ta_IN", 1097},  {"te_IN", 1098},       {"th_TH", 1054}, {"tr_TR", 1055},
    {"uk_UA", 1058},  {"ur_PK", 1056},  {"uz_UZ", 1091},       {"vi_VN", 1066}, {"zh_CN", 2052},
    {"zh_HK", 3076},  {"zh_SG", 4100},  {"zh_TW", 1028},
}};
// clang-format on
static_assert(std::ranges::adjacent_find(locales, std::ranges::greater_equal{}, &LocaleRow::name) ==
              locales.end());

constexpr std::uint32_t english = 1033;

const LocaleRow* row_from(std::string_view name)
{
    const auto row = std::ranges::lower_bound(locales, name, {}, &LocaleRow::name);
    return row == locales.end() ? nullptr : &*row;
}

std::optional<std::uint32_t> exactly(std::string_view name)
{
    const LocaleRow* row = row_from(name);
    return row && row->name == name ? std::optional(row->id) : std::nullopt;
}

} // namespace

std::optional<std::uint32_t> locale_id(std::string_view locale)
{
    const std::string_view plain = locale.substr(0, locale.find_first_of(".@"));
    const auto at = locale.find('@');
    const std::string_view modifier = at == locale.npos ? "" : locale.substr(at);
    if (plain == "C" || plain == "POSIX")
        return english;
    if (const auto id = exactly(std::string(plain) + std::string(modifier)))
        return id;
    if (const auto id = exactly(plain))
        return id;
    const std::string language = std::string(plain.substr(0, plain.find('_'))) + "_";
    const LocaleRow* row = language.size() > 1 ? row_from(language) : nullptr;
    return row && row->name.starts_with(language) ? std::optional(row->id) : std::nullopt;
}

} // namespace ostrelum::linux_platform
