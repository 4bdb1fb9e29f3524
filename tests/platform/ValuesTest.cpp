// The code page, dates and rounding: values in, values out.
#include <cfenv>
#include <limits>

#include "platform/CodePage.h"
#include "platform/Rounding.h"
#include "tests/support/Fixtures.h"

TEST(CodePage, EveryByteComesBackAsItself) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  EXPECT_EQ(platform::ToCodePage(platform::FromCodePage(all)), all);
}

TEST(CodePage, TheCharactersAreThoseOfWindows) {
  EXPECT_EQ(platform::FromCodePage("\x80\x8E\x99\x9F\xA0\xFF"), u"\u20AC\u017D\u2122\u0178\u00A0\u00FF");
  EXPECT_EQ(platform::FromCodePage("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
}

TEST(CodePage, NoCharacterBecomesAQuestionMark) {
  EXPECT_EQ(platform::ToCodePage(QStringLiteral("a\u0416")), std::nullopt);
  EXPECT_EQ(platform::ToCodePage(QStringLiteral("\u0080")), std::nullopt) << "80 hex is the euro sign";
  EXPECT_EQ(platform::FirstForeignCharacter(QStringLiteral("\u20ACa\u0416b\u0417")), u"\u0416");
  EXPECT_EQ(platform::FirstForeignCharacter(QStringLiteral("a\U0001F600b")), u"\U0001F600");
  EXPECT_EQ(platform::FirstForeignCharacter(QStringLiteral("caf\u00E9")), u"");
}

TEST(Dates, TheFractionCountsAwayFromZero) {
  const struct {
    double date;
    QDate day;
    QTime time;
  } cases[] = {
      {0.25, {1899, 12, 30}, {6, 0}},    {-0.25, {1899, 12, 30}, {6, 0}},  {-1.25, {1899, 12, 29}, {6, 0}},
      {-3.75, {1899, 12, 27}, {18, 0}},  {36526.5, {2000, 1, 1}, {12, 0}}, {-657434, {100, 1, 1}, {0, 0}},
      {2958465, {9999, 12, 31}, {0, 0}},
  };
  for (const auto& [date, day, time] : cases) {
    const QDateTime moment = platform::ToDateTime(date);
    EXPECT_EQ(moment.date(), day) << date;
    EXPECT_EQ(moment.time(), time) << date;
    EXPECT_DOUBLE_EQ(platform::FromDateTime(moment), date == -0.25 ? 0.25 : date);
  }
}

TEST(Dates, WhatIsNoDateHasNoDay) {
  for (const double date : {1e300, -1e12, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_FALSE(platform::ToDateTime(date).isValid());
    EXPECT_EQ(platform::LongDate(date), QString());
  }
}

TEST(Dates, TheLongDateIsTheUsersOwn) {
  const QDate day(2000, 1, 1);
  EXPECT_EQ(platform::LongDate(36526.75), QLocale::system().toString(day, QLocale::LongFormat));
  const fixture::PlainLongDates plain;
  EXPECT_EQ(platform::LongDate(36526.75), u"day 36526");
}

TEST(Dates, TheClockIsLocalUntilATestHoldsIt) {
  {
    const fixture::Clock clock(100.5);
    EXPECT_EQ(platform::Now(), 100.5);
  }
  const QDateTime read = platform::ToDateTime(platform::Now());
  const QDateTime local = QDateTime::currentDateTime();
  const QDateTime sameFace(local.date(), local.time(), Qt::UTC);
  EXPECT_LT(qAbs(read.msecsTo(sameFace)), 10000);
}

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
  for (const int mode : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
    fesetround(mode);
    const long rounded[] = {platform::RoundHalfEven(0.5),  platform::RoundHalfEven(1.5),
                            platform::RoundHalfEven(2.5),  platform::RoundHalfEven(-0.5),
                            platform::RoundHalfEven(-1.5), platform::RoundHalfEven(0.49999999999999994),
                            platform::RoundHalfEven(2.51), platform::RoundHalfEven(-2.49)};
    fesetround(FE_TONEAREST);
    EXPECT_EQ(std::vector<long>(std::begin(rounded), std::end(rounded)),
              (std::vector<long>{0, 2, 2, 0, -2, 0, 3, -2}));
  }
  EXPECT_EQ(platform::RoundHalfEven(-1e300), -9000000000000000000);
}
