// The code page, dates, rounding and the pointer's scale: values in, values out.
#include <cfenv>
#include <limits>

#include "platform/CodePage.h"
#include "platform/Dates.h"
#include "platform/Rounding.h"
#include "platform/desktop/cMouse.h"
#include "tests/support/Fixtures.h"

TEST(CodePage, EveryByteComesBackAndNoCharacterBecomesAQuestionMark) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  EXPECT_EQ(platform::ToCodePage(platform::FromCodePage(all)), all);
  EXPECT_EQ(platform::FromCodePage("\x80\x81\x8E\x99\x9F\xA0\xFF"),
            u"\u20AC\u0081\u017D\u2122\u0178\u00A0\u00FF");
  EXPECT_EQ(platform::ToCodePage(QStringLiteral("a\u0416")), std::nullopt);
  EXPECT_EQ(platform::ToCodePage(QStringLiteral("\u0080")), std::nullopt) << "80 hex is the euro sign";
  EXPECT_EQ(platform::FirstForeignCharacter(QStringLiteral("\u20ACa\U0001F600b\u0417")), u"\U0001F600");
}

TEST(Dates, TheFractionCountsAwayFromZero) {
  const std::pair<double, const char*> cases[] = {
      {0.25, "1899-12-30T06:00:00Z"},   {-0.25, "1899-12-30T06:00:00Z"},   {-1.25, "1899-12-29T06:00:00Z"},
      {-3.75, "1899-12-27T18:00:00Z"},  {36526.5, "2000-01-01T12:00:00Z"}, {-657434, "0100-01-01T00:00:00Z"},
      {2958465, "9999-12-31T00:00:00Z"}};
  for (const auto& [date, moment] : cases) {
    const QDateTime read = platform::ToDateTime(date);
    EXPECT_EQ(read.toString(Qt::ISODate).toStdString(), moment);
    EXPECT_DOUBLE_EQ(platform::FromDateTime(read), date == -0.25 ? 0.25 : date);
  }
  for (const double date : {1e300, -1e12, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(platform::LongDate(date), QString());
  EXPECT_EQ(platform::LongDate(36526.75), QLocale::system().toString(QDate(2000, 1, 1), QLocale::LongFormat));
}

TEST(Rounding, HalvesGoToTheEvenNeighbourInEveryMode) {
  const std::pair<double, long> cases[] = {
      {0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {0.49999999999999994, 0}, {2.51, 3}, {-2.49, -2}};
  for (const int mode : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO})
    for (const auto& [value, expected] : cases) {
      fesetround(mode);
      const long rounded = platform::RoundHalfEven(value);
      fesetround(FE_TONEAREST);
      EXPECT_EQ(rounded, expected) << value;
    }
  EXPECT_EQ(platform::RoundHalfEven(-1e300), -9000000000000000000);
}

// What the pointer does for real, only a display system can show: see PointerTest.cpp.
TEST(Pointer, APlaceAbove32767Overflows) {
  cMouse mouse;
  mouse.MoveTo(32767, -32768);
  for (const auto& place : {std::pair{32768, 0}, {0, 32768}, {-32769, 0}, {0x7FFFFFFF, 0}})
    fixture::ExpectFailure(platform::FailureKind::Overflow, "Overflow",
                           [&] { mouse.MoveTo(place.first, place.second); });
}
