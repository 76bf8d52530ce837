#include "exceptions/ValueException.h"
#include "support/Clip.h"
#include "support/CountingObserver.h"
#include "support/Thrown.h"
#include "timeline/IMFile.h"
#include "timeline/StaticEditor.h"
#include "timeline/TemporalEditor.h"

#include <cmath>
#include <limits>

namespace tarn {
namespace test {
namespace {

using TrackRange = Range<long long>;
using SourceRange = Range<double>;
using BadScalar = ValueException<double>;
using BadOffset = ValueException<long long>;

/// The two clocks of a media and what edits do to them. Offsets and track ranges are edit units.
class MediaTimingTest : public ClipTest
{
protected:
    /// A still of 640 x 480.
    boost::shared_ptr<IMFile> still(long long start, long long duration) const
    {
        return boost::shared_ptr<IMFile>(
            new IMFile(start, duration, project->weak(), Rect<float>(0, 0, 640, 480), "still"));
    }
    /// 200 units from 100 on, shown at half speed: 400 units of the track.
    boost::shared_ptr<Clip> halfSpeed() const
    {
        boost::shared_ptr<Clip> const made = clip(100, 200);
        made->stretch(2.0);
        made->setTrackStart(500);
        return made;
    }
};

::testing::AssertionResult shows(Media const& media, TrackRange const& track,
                                 SourceRange const& source, double scalar)
{
    if (media.trackRange() == track && media.mediaRange() == source && media.scalar() == scalar)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << media.trackRange() << " of " << media.mediaRange() << " at " << media.scalar();
}

// ---- Ranges ----

TEST_F(MediaTimingTest, AFreshMediaStartsAtZeroAndShowsItsSourceRange)
{
    EXPECT_TRUE(shows(*clip(30, 100), TrackRange(0, 100), SourceRange(30, 100), 1.0));
}

TEST_F(MediaTimingTest, KeepsTheLimitsOfItsSource)
{
    boost::shared_ptr<Clip const> const made = clip(30, 100, 5.5, 200.25);
    EXPECT_EQ(5.5, made->mediaStartLimit());
    EXPECT_EQ(200.25, made->mediaEndLimit());
}

TEST_F(MediaTimingTest, ItsTimesAreThoseOfTheTrack)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    made->setTrackStart(7);
    EXPECT_EQ(7, made->startTime());
    EXPECT_EQ(107, made->endTime());
    EXPECT_EQ(100, made->duration());
    EXPECT_EQ(TrackRange(7, 100), made->timeRange());
}

TEST_F(MediaTimingTest, AMoveChangesTheTrackStartOnly)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    made->move(25);
    EXPECT_TRUE(shows(*made, TrackRange(25, 100), SourceRange(30, 100), 1.0));
    made->move(-40);
    EXPECT_TRUE(shows(*made, TrackRange(-15, 100), SourceRange(30, 100), 1.0));
}

TEST_F(MediaTimingTest, SettingTheTrackStartChangesNothingElse)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    made->setTrackStart(12);
    EXPECT_TRUE(shows(*made, TrackRange(12, 100), SourceRange(30, 100), 1.0));
}

TEST_F(MediaTimingTest, TellsTheRangesThatEditsWouldGive)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    made->setTrackStart(40);
    EXPECT_EQ(TrackRange(45, 100), made->trackRangeWithMove(5));
    EXPECT_EQ(TrackRange(45, 95), made->trackRangeWithTrimStart(5));
    EXPECT_EQ(TrackRange(40, 95), made->trackRangeWithTrimEnd(5));
    EXPECT_EQ(TrackRange(35, 105), made->trackRangeWithTrimStart(-5));
}

TEST_F(MediaTimingTest, EveryEditNotifiesOnce)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    CountingObserver observer;
    made->attach(&observer);
    made->move(5);
    EXPECT_EQ(1, observer.calls());
    made->setTrackStart(20);
    EXPECT_EQ(2, observer.calls());
    made->trimStart(5);
    EXPECT_EQ(3, observer.calls());
    made->trimEnd(5);
    EXPECT_EQ(4, observer.calls());
    made->stretch(2.0);
    EXPECT_EQ(5, observer.calls());
    made->detach(&observer);
}

TEST_F(MediaTimingTest, ARefusedEditDoesNotNotify)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    CountingObserver observer;
    made->attach(&observer);
    EXPECT_THROW(made->trimStart(100), BadOffset);
    EXPECT_THROW(made->trimEnd(100), BadOffset);
    EXPECT_THROW(made->stretch(0.0), BadScalar);
    EXPECT_EQ(0, observer.calls());
    made->detach(&observer);
}

// ---- Stretch ----

TEST_F(MediaTimingTest, AStretchByTwoDoublesTheTrackDuration)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    EXPECT_EQ(2.0, made->stretch(2.0));
    EXPECT_TRUE(shows(*made, TrackRange(0, 200), SourceRange(30, 100), 2.0));
}

TEST_F(MediaTimingTest, AStretchBackToOneGivesTheOldDuration)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    made->stretch(2.0);
    EXPECT_EQ(1.0, made->stretch(1.0));
    EXPECT_TRUE(shows(*made, TrackRange(0, 100), SourceRange(30, 100), 1.0));
}

TEST_F(MediaTimingTest, TheScalarIsTheOneOfAWholeDuration)
{
    // 100 * 0.333 = 33.3, so 33 units and a scalar of 33 / 100.
    boost::shared_ptr<Clip> const made = clip(0, 100);
    EXPECT_DOUBLE_EQ(0.33, made->stretch(0.333));
    EXPECT_EQ(33, made->duration());
    EXPECT_DOUBLE_EQ(0.33, made->scalar());
}

TEST_F(MediaTimingTest, AStretchedDurationRoundsHalvesUp)
{
    // 101 * 0.5 = 50.5
    boost::shared_ptr<Clip> const made = clip(0, 101);
    EXPECT_DOUBLE_EQ(51.0 / 101.0, made->stretch(0.5));
    EXPECT_EQ(51, made->duration());
}

TEST_F(MediaTimingTest, AStretchedDurationRoundsLessThanHalvesDown)
{
    // 101 * 0.25 = 25.25
    boost::shared_ptr<Clip> const made = clip(0, 101);
    EXPECT_DOUBLE_EQ(25.0 / 101.0, made->stretch(0.25));
    EXPECT_EQ(25, made->duration());
}

TEST_F(MediaTimingTest, ASecondStretchIsMeasuredFromTheNaturalLength)
{
    // 200 / 2 = 100; 100 * 3 = 300
    boost::shared_ptr<Clip> const made = clip(0, 100);
    made->stretch(2.0);
    EXPECT_EQ(3.0, made->stretch(3.0));
    EXPECT_TRUE(shows(*made, TrackRange(0, 300), SourceRange(0, 100), 3.0));
}

TEST_F(MediaTimingTest, TheShortestStretchIsOneUnit)
{
    // 100 * 0.005 = 0.5, which rounds up; 100 * 0.0049 = 0.49 does not.
    boost::shared_ptr<Clip> const made = clip(0, 100);
    EXPECT_DOUBLE_EQ(0.01, made->stretch(0.005));
    EXPECT_EQ(1, made->duration());
    EXPECT_THROW(clip(0, 100)->stretch(0.0049), BadScalar);
}

TEST_F(MediaTimingTest, AStretchToNothingIsRefusedWithTheScalarAskedFor)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    BadScalar const thrown = thrownBy<BadScalar>([&] { made->stretch(0.001); });
    EXPECT_STREQ("invalid duration after media stretch (<=0)", thrown.what());
    EXPECT_EQ(0.001, thrown.value());
    EXPECT_TRUE(shows(*made, TrackRange(0, 100), SourceRange(30, 100), 1.0));
}

TEST_F(MediaTimingTest, StretchesByZeroAndByLessAreRefused)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    EXPECT_EQ(0.0, thrownBy<BadScalar>([&] { made->stretch(0.0); }).value());
    EXPECT_EQ(-1.0, thrownBy<BadScalar>([&] { made->stretch(-1.0); }).value());
    EXPECT_TRUE(shows(*made, TrackRange(0, 100), SourceRange(30, 100), 1.0));
}

TEST_F(MediaTimingTest, AStretchBeyondAllNumbersIsRefused)
{
    boost::shared_ptr<Clip> const made = clip(30, 100);
    double const infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(1e30, thrownBy<BadScalar>([&] { made->stretch(1e30); }).value());
    EXPECT_EQ(infinity, thrownBy<BadScalar>([&] { made->stretch(infinity); }).value());
    EXPECT_TRUE(std::isnan(thrownBy<BadScalar>([&] { made->stretch(std::nan("")); }).value()));
    EXPECT_TRUE(shows(*made, TrackRange(0, 100), SourceRange(30, 100), 1.0));
}

TEST_F(MediaTimingTest, AReturnToNaturalSpeedIsCutAtTheSourcesEnd)
{
    // floor(120.5 - 30) = 90 of the 100 units are left; the scalar is exactly 1 all the same.
    boost::shared_ptr<Clip> const made = clip(30, 100, 0, 120.5);
    EXPECT_EQ(1.0, made->stretch(1.0));
    EXPECT_TRUE(shows(*made, TrackRange(0, 90), SourceRange(30, 100), 1.0));
}

TEST_F(MediaTimingTest, OnlyAReturnToNaturalSpeedIsCut)
{
    boost::shared_ptr<Clip> const made = clip(30, 100, 0, 120.5);
    made->stretch(2.0);
    EXPECT_TRUE(shows(*made, TrackRange(0, 200), SourceRange(30, 100), 2.0));
}

TEST_F(MediaTimingTest, AReturnToNaturalSpeedPastTheSourcesEndIsRefused)
{
    // floor(120 - 130) is below 0.
    boost::shared_ptr<Clip> const made = clip(130, 100, 0, 120);
    EXPECT_EQ(1.0, thrownBy<BadScalar>([&] { made->stretch(1.0); }).value());
    EXPECT_TRUE(shows(*made, TrackRange(0, 100), SourceRange(130, 100), 1.0));
}

TEST_F(MediaTimingTest, AReturnToNaturalSpeedRoundsTheLengthOfATrimmedMedia)
{
    // 290 / 3 = 96.67 media units are shown, and 97 come back.
    boost::shared_ptr<Clip> const made = clip(0, 100);
    made->stretch(3.0);
    made->trimEnd(10);
    EXPECT_DOUBLE_EQ(290.0 / 3.0, made->mediaRange().duration);
    EXPECT_EQ(1.0, made->stretch(1.0));
    EXPECT_EQ(97, made->duration());
    EXPECT_DOUBLE_EQ(290.0 / 3.0, made->mediaRange().duration);
}

TEST_F(MediaTimingTest, PredictsTheStretchOfAMediaAtNaturalSpeed)
{
    boost::shared_ptr<Clip> const made = clip(0, 101);
    made->setTrackStart(7);
    EXPECT_EQ(TrackRange(7, 51), made->trackRangeWithStretch(0.5));
    EXPECT_EQ(TrackRange(7, 303), made->trackRangeWithStretch(3.0));
    EXPECT_EQ(TrackRange(7, 101), made->trackRangeWithStretch(1.0));
    EXPECT_EQ(101, made->duration());
}

TEST_F(MediaTimingTest, PredictsAnotherStretchFromThePresentLength)
{
    // The prediction multiplies the 200 units there are; the stretch itself goes by the 100.
    boost::shared_ptr<Clip> const made = clip(0, 100);
    made->stretch(2.0);
    EXPECT_EQ(TrackRange(0, 600), made->trackRangeWithStretch(3.0));
    EXPECT_EQ(TrackRange(0, 200), made->trackRangeWithStretch(1.0));
}

TEST_F(MediaTimingTest, PredictsTheCutAtTheSourcesEnd)
{
    EXPECT_EQ(TrackRange(0, 90), clip(30, 100, 0, 120.5)->trackRangeWithStretch(1.0));
}

TEST_F(MediaTimingTest, PredictsNoDurationForWhatNoNumberHolds)
{
    EXPECT_EQ(TrackRange(0, 0), clip(0, 100)->trackRangeWithStretch(0.001));
    EXPECT_EQ(TrackRange(0, 0), clip(0, 100)->trackRangeWithStretch(1e30));
    EXPECT_EQ(TrackRange(0, 0), clip(0, 100)->trackRangeWithStretch(std::nan("")));
}

// ---- Trims of moving pictures ----

TEST_F(MediaTimingTest, ATrimOfTheStartShortensBothRanges)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->trimStart(30);
    EXPECT_TRUE(shows(*made, TrackRange(30, 170), SourceRange(130, 170), 1.0));
}

TEST_F(MediaTimingTest, ATrimOfTheEndShortensBothRanges)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->trimEnd(30);
    EXPECT_TRUE(shows(*made, TrackRange(0, 170), SourceRange(100, 170), 1.0));
}

TEST_F(MediaTimingTest, TrimsByNothingChangeNothing)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->trimStart(0);
    made->trimEnd(0);
    EXPECT_TRUE(shows(*made, TrackRange(0, 200), SourceRange(100, 200), 1.0));
}

TEST_F(MediaTimingTest, ANegativeTrimOfTheStartUncoversSource)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->setTrackStart(60);
    made->trimStart(-50);
    EXPECT_TRUE(shows(*made, TrackRange(10, 250), SourceRange(50, 250), 1.0));
}

TEST_F(MediaTimingTest, ANegativeTrimOfTheEndUncoversSource)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->trimEnd(-50);
    EXPECT_TRUE(shows(*made, TrackRange(0, 250), SourceRange(100, 250), 1.0));
}

TEST_F(MediaTimingTest, ATrimOfAStretchedMediaMovesTheSourceByLess)
{
    // 100 units of the track are 50 of the source at half speed.
    boost::shared_ptr<Clip> const made = halfSpeed();
    made->trimStart(100);
    EXPECT_TRUE(shows(*made, TrackRange(600, 300), SourceRange(150, 150), 2.0));
    made->trimEnd(100);
    EXPECT_TRUE(shows(*made, TrackRange(600, 200), SourceRange(150, 100), 2.0));
}

TEST_F(MediaTimingTest, ATrimOfTheStartMayReachTheSourcesBeginning)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->setTrackStart(300);
    made->trimStart(-100);
    EXPECT_TRUE(shows(*made, TrackRange(200, 300), SourceRange(0, 300), 1.0));
}

TEST_F(MediaTimingTest, ATrimOfTheStartMayNotPassTheSourcesBeginning)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->setTrackStart(300);
    EXPECT_FALSE(made->validTrimStart(-101));
    BadOffset const thrown = thrownBy<BadOffset>([&] { made->trimStart(-101); });
    EXPECT_STREQ("invalid media trim start offset", thrown.what());
    EXPECT_EQ(-101, thrown.value());
    EXPECT_TRUE(shows(*made, TrackRange(300, 200), SourceRange(100, 200), 1.0));
}

TEST_F(MediaTimingTest, LessThanOneUnitBeforeTheSourcesBeginningIsItsBeginning)
{
    // 601 / 2 = 300.5 media units would start at -0.5.
    boost::shared_ptr<Clip> const made = halfSpeed();
    made->trimStart(-201);
    EXPECT_TRUE(shows(*made, TrackRange(299, 601), SourceRange(0, 300.5), 2.0));
}

TEST_F(MediaTimingTest, LessThanOneUnitAfterTheSourcesBeginningIsItsBeginning)
{
    // 599 / 2 = 299.5 media units would start at 0.5.
    boost::shared_ptr<Clip> const made = halfSpeed();
    made->trimStart(-199);
    EXPECT_TRUE(shows(*made, TrackRange(301, 599), SourceRange(0, 299.5), 2.0));
}

TEST_F(MediaTimingTest, AWholeUnitAfterTheSourcesBeginningStays)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->setTrackStart(300);
    made->trimStart(-99);
    EXPECT_TRUE(shows(*made, TrackRange(201, 299), SourceRange(1, 299), 1.0));
}

TEST_F(MediaTimingTest, ATrimOfTheStartMayNotPassTheTracksBeginning)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->setTrackStart(49);
    EXPECT_TRUE(made->validTrimStart(-49));
    EXPECT_FALSE(made->validTrimStart(-50));
    EXPECT_EQ(-50, thrownBy<BadOffset>([&] { made->trimStart(-50); }).value());
    EXPECT_TRUE(shows(*made, TrackRange(49, 200), SourceRange(100, 200), 1.0));
}

TEST_F(MediaTimingTest, ATrimOfTheStartLeavesAtLeastOneUnit)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    EXPECT_FALSE(made->validTrimStart(200));
    EXPECT_FALSE(made->validTrimStart(250));
    EXPECT_EQ(200, thrownBy<BadOffset>([&] { made->trimStart(200); }).value());
    made->trimStart(199);
    EXPECT_TRUE(shows(*made, TrackRange(199, 1), SourceRange(299, 1), 1.0));
}

TEST_F(MediaTimingTest, ATrimOfTheEndLeavesAtLeastOneUnit)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    BadOffset const thrown = thrownBy<BadOffset>([&] { made->trimEnd(200); });
    EXPECT_STREQ("invalid media trim end offset", thrown.what());
    EXPECT_EQ(200, thrown.value());
    EXPECT_FALSE(made->validTrimEnd(250));
    EXPECT_TRUE(shows(*made, TrackRange(0, 200), SourceRange(100, 200), 1.0));
    made->trimEnd(199);
    EXPECT_TRUE(shows(*made, TrackRange(0, 1), SourceRange(100, 1), 1.0));
}

TEST_F(MediaTimingTest, TrimsLeaveAWholeUnitOfTheSource)
{
    // One unit of the track would be half a unit of the source.
    boost::shared_ptr<Clip> const made = halfSpeed();
    EXPECT_FALSE(made->validTrimEnd(399));
    EXPECT_FALSE(made->validTrimStart(399));
    made->trimEnd(398);
    EXPECT_TRUE(shows(*made, TrackRange(500, 2), SourceRange(100, 1), 2.0));
}

TEST_F(MediaTimingTest, AStartLessThanOneUnitFromTheSourcesEndIsRefused)
{
    // Half a unit shown would start at 999.5; half a unit counts as the end itself.
    boost::shared_ptr<Clip> const made = clip(900, 100, 0, 1000);
    made->stretch(2.0);
    EXPECT_TRUE(made->mediaEditor().validMediaStartWithTrimOffset(198));
    EXPECT_FALSE(made->mediaEditor().validMediaStartWithTrimOffset(199));
}

TEST_F(MediaTimingTest, AStartAUnitFromTheSourcesEndIsAccepted)
{
    boost::shared_ptr<Clip> const made = clip(900, 100, 0, 1000);
    made->trimStart(99);
    EXPECT_TRUE(shows(*made, TrackRange(99, 1), SourceRange(999, 1), 1.0));
}

TEST_F(MediaTimingTest, TheLengthOfAMediaIsHeldAgainstTheTimeWhereItsSourceEnds)
{
    // From 100 on, 250 units reach to 350; as a length they are no more than the limit of 250.
    boost::shared_ptr<Clip> const made = clip(100, 200, 0, 250);
    EXPECT_FALSE(made->validTrimEnd(-51));
    EXPECT_EQ(-51, thrownBy<BadOffset>([&] { made->trimEnd(-51); }).value());
    made->trimEnd(-50);
    EXPECT_TRUE(shows(*made, TrackRange(0, 250), SourceRange(100, 250), 1.0));
}

TEST_F(MediaTimingTest, ALengthLessThanOneUnitFromTheEndLimitBecomesTheLimit)
{
    boost::shared_ptr<Clip> const made = clip(0, 199, 0, 199.5);
    made->trimEnd(0);
    EXPECT_TRUE(shows(*made, TrackRange(0, 199), SourceRange(0, 199.5), 1.0));
    made->trimEnd(-1);
    EXPECT_TRUE(shows(*made, TrackRange(0, 200), SourceRange(0, 199.5), 1.0));
    EXPECT_FALSE(made->validTrimEnd(-1));
}

TEST_F(MediaTimingTest, ATrimOfTheStartRoundsTheLengthToTheEndLimitToo)
{
    // 99 units become 99.5, so the source starts half a unit early and that counts as 0.
    boost::shared_ptr<Clip> const made = clip(0, 100, 0, 99.5);
    made->trimStart(1);
    EXPECT_TRUE(shows(*made, TrackRange(1, 99), SourceRange(0, 99.5), 1.0));
}

TEST_F(MediaTimingTest, TheSourceMayBeginLaterThanZero)
{
    boost::shared_ptr<Clip> const made = clip(100, 200, 50);
    made->setTrackStart(500);
    EXPECT_FALSE(made->validTrimStart(-51));
    made->trimStart(-50);
    EXPECT_TRUE(shows(*made, TrackRange(450, 250), SourceRange(50, 250), 1.0));
}

TEST_F(MediaTimingTest, LessThanOneUnitBeforeALaterBeginningStaysThere)
{
    // 501 / 2 = 250.5 media units start at 49.5, which is near 50 and not near 0.
    boost::shared_ptr<Clip> const made = clip(100, 200, 50);
    made->stretch(2.0);
    made->setTrackStart(500);
    made->trimStart(-101);
    EXPECT_TRUE(shows(*made, TrackRange(399, 501), SourceRange(49.5, 250.5), 2.0));
}

TEST_F(MediaTimingTest, TheLargestOffsetsAreRefused)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    long long const most = std::numeric_limits<long long>::max();
    long long const least = std::numeric_limits<long long>::min();
    EXPECT_THROW(made->trimStart(most), BadOffset);
    EXPECT_THROW(made->trimStart(least), BadOffset);
    EXPECT_THROW(made->trimEnd(most), BadOffset);
    EXPECT_THROW(made->trimEnd(least), BadOffset);
    EXPECT_TRUE(shows(*made, TrackRange(0, 200), SourceRange(100, 200), 1.0));
}

TEST_F(MediaTimingTest, AskingForATrimChangesNothing)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    EXPECT_TRUE(made->validTrimStart(10));
    EXPECT_TRUE(made->validTrimEnd(10));
    EXPECT_TRUE(shows(*made, TrackRange(0, 200), SourceRange(100, 200), 1.0));
}

// ---- Limits of trims ----

TEST_F(MediaTimingTest, TrimLimitsAreWhatTheSourceHasLeft)
{
    // 1000 - (100 + 200) = 700
    EXPECT_EQ(-100, clip(100, 200)->trimStartLimit());
    EXPECT_EQ(-700, clip(100, 200)->trimEndLimit());
    EXPECT_EQ(0, clip(0, 1000)->trimStartLimit());
    EXPECT_EQ(0, clip(0, 1000)->trimEndLimit());
}

TEST_F(MediaTimingTest, TheTrimLimitOfTheStartGrowsWithTheStretch)
{
    EXPECT_EQ(-200, halfSpeed()->trimStartLimit());
}

TEST_F(MediaTimingTest, TheTrimLimitOfTheStartIsAWholeNumber)
{
    // 200 * 0.335 = 67 units; 100 * 0.335 = 33.5 lie before them.
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->stretch(0.335);
    EXPECT_EQ(67, made->duration());
    EXPECT_EQ(-33, made->trimStartLimit());
}

TEST_F(MediaTimingTest, TheTrimLimitOfTheEndScalesTheSourcesEndOnly)
{
    // 1000 * 2 - 300 and 1000 * 0.25 - 300
    EXPECT_EQ(-1700, halfSpeed()->trimEndLimit());
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->stretch(0.25);
    EXPECT_EQ(50, made->trimEndLimit());
}

TEST_F(MediaTimingTest, TheTrimLimitOfTheEndRoundsTowardsMore)
{
    // floor(700.75) = 700; floor(1000.2 * 0.25 - 300) = floor(-49.95) = -50
    EXPECT_EQ(-700, clip(100, 200, 0, 1000.75)->trimEndLimit());
    boost::shared_ptr<Clip> const made = clip(100, 200, 0, 1000.2);
    made->stretch(0.25);
    EXPECT_EQ(50, made->trimEndLimit());
}

// ---- Nearness ----

TEST_F(MediaTimingTest, NumbersLessThanOneApartAreAlmostTheSame)
{
    boost::shared_ptr<Clip> const made = clip(0, 100);
    MediaEditor const& editor = made->mediaEditor();
    EXPECT_TRUE(editor.almostNumber(5.0, 5.0, 1e-8));
    EXPECT_TRUE(editor.almostNumber(5.0, 5.999, 1e-8));
    EXPECT_TRUE(editor.almostNumber(5.999, 5.0, 1e-8));
    EXPECT_TRUE(editor.almostNumber(-0.5, 0.25, 1e-8));
}

TEST_F(MediaTimingTest, NumbersAWholeUnitApartAreNot)
{
    boost::shared_ptr<Clip> const made = clip(0, 100);
    MediaEditor const& editor = made->mediaEditor();
    EXPECT_FALSE(editor.almostNumber(5.0, 6.0, 1e-8));
    EXPECT_FALSE(editor.almostNumber(6.0, 5.0, 1e-8));
    EXPECT_FALSE(editor.almostNumber(5.0, 6.5, 1.0));
    EXPECT_TRUE(editor.almostNumber(5.0, 6.5, 1.5));
}

TEST_F(MediaTimingTest, WhatNoWholeNumberHoldsIsFarApart)
{
    boost::shared_ptr<Clip> const made = clip(0, 100);
    MediaEditor const& editor = made->mediaEditor();
    EXPECT_FALSE(editor.almostNumber(0.0, std::nan(""), 1e-8));
    EXPECT_FALSE(editor.almostNumber(0.0, 2147483648.0, 1e-8));
    EXPECT_FALSE(editor.almostNumber(4294967296.0, 0.0, 1e-8));
    EXPECT_FALSE(editor.almostNumber(1e300, 0.0, 1e-8));
}

TEST_F(MediaTimingTest, RoundsToTheFirstNumberWhenTheSecondIsClose)
{
    boost::shared_ptr<Clip> const made = clip(0, 100);
    MediaEditor const& editor = made->mediaEditor();
    EXPECT_EQ(10.0, editor.roundIfClose(10.0, 10.75, 1e-8));
    EXPECT_EQ(10.0, editor.roundIfClose(10.0, 9.25, 1e-8));
    EXPECT_EQ(11.0, editor.roundIfClose(10.0, 11.0, 1e-8));
    EXPECT_EQ(4294967306.0, editor.roundIfClose(10.0, 4294967306.0, 1e-8));
    EXPECT_TRUE(std::isnan(editor.roundIfClose(10.0, std::nan(""), 1e-8)));
}

TEST_F(MediaTimingTest, AStretchOffsetIsTheRestAfterTheScaledOffset)
{
    boost::shared_ptr<Clip> const made = clip(0, 100);
    EXPECT_EQ(95.0, made->mediaEditor().stretchOffset(10, 100.0, 2.0));
    EXPECT_EQ(105.0, made->mediaEditor().stretchOffset(-10, 100.0, 2.0));
}

// ---- Stills ----

TEST_F(MediaTimingTest, AStillStartsLikeEveryMedia)
{
    EXPECT_TRUE(shows(*still(30, 100), TrackRange(0, 100), SourceRange(30, 100), 1.0));
    EXPECT_EQ(0, still(30, 100)->trimStartSum());
}

TEST_F(MediaTimingTest, ATrimOfAStillsStartIsSummedUp)
{
    boost::shared_ptr<IMFile> const made = still(30, 100);
    made->trimStart(40);
    EXPECT_TRUE(shows(*made, TrackRange(40, 60), SourceRange(30, 100), 1.0));
    made->trimStart(-500);
    EXPECT_TRUE(shows(*made, TrackRange(-460, 560), SourceRange(30, 100), 1.0));
    EXPECT_EQ(-460, made->trimStartSum());
}

TEST_F(MediaTimingTest, ATrimOfAStillsEndIsNotSummedUp)
{
    boost::shared_ptr<IMFile> const made = still(30, 100);
    made->trimEnd(-5000);
    EXPECT_TRUE(shows(*made, TrackRange(0, 5100), SourceRange(30, 100), 1.0));
    EXPECT_EQ(0, made->trimStartSum());
}

TEST_F(MediaTimingTest, AStillCanBeTrimmedToNothingAndToLess)
{
    boost::shared_ptr<IMFile> const made = still(0, 100);
    made->trimEnd(100);
    EXPECT_EQ(TrackRange(0, 0), made->trackRange());
    made->trimStart(10);
    EXPECT_EQ(TrackRange(10, -10), made->trackRange());
}

TEST_F(MediaTimingTest, EveryTrimOfAStillIsValid)
{
    boost::shared_ptr<IMFile> const made = still(0, 100);
    EXPECT_TRUE(made->validTrimStart(1000000));
    EXPECT_TRUE(made->validTrimStart(-1000000));
    EXPECT_TRUE(made->validTrimEnd(1000000));
    EXPECT_TRUE(made->validTrimEnd(-1000000));
}

TEST_F(MediaTimingTest, TrimsOfAStillHaveNoBound)
{
    EXPECT_EQ(std::numeric_limits<long long>::min(), still(0, 100)->trimStartLimit());
    EXPECT_EQ(std::numeric_limits<long long>::min(), still(0, 100)->trimEndLimit());
}

TEST_F(MediaTimingTest, AStillMovesAndStretchesLikeEveryMedia)
{
    boost::shared_ptr<IMFile> const made = still(30, 100);
    made->move(12);
    EXPECT_EQ(2.0, made->stretch(2.0));
    EXPECT_TRUE(shows(*made, TrackRange(12, 200), SourceRange(30, 100), 2.0));
    EXPECT_EQ(1.0, made->stretch(1.0));
    EXPECT_TRUE(shows(*made, TrackRange(12, 100), SourceRange(30, 100), 1.0));
}

TEST_F(MediaTimingTest, AStillWithoutLengthCannotBeStretched)
{
    boost::shared_ptr<IMFile> const made = still(0, 100);
    made->trimEnd(100);
    EXPECT_EQ(2.0, thrownBy<BadScalar>([&] { made->stretch(2.0); }).value());
    EXPECT_EQ(1.0, thrownBy<BadScalar>([&] { made->stretch(1.0); }).value());
    EXPECT_TRUE(shows(*made, TrackRange(0, 0), SourceRange(0, 100), 1.0));
}

TEST_F(MediaTimingTest, AStaticEditorWorksWithoutASum)
{
    boost::shared_ptr<Clip> const made = clip(0, 100);
    StaticEditor editor(made.get(), nullptr);
    TrackRange track(5, 100);
    SourceRange source(30, 100);
    editor.trimStart(10, track, source);
    EXPECT_EQ(TrackRange(15, 90), track);
    EXPECT_EQ(SourceRange(30, 100), source);
}

// ---- The clock of key frames ----

TEST_F(MediaTimingTest, ParameterTimeIsTheSourcesClock)
{
    // 50 / 2 + 100 = 125
    boost::shared_ptr<Clip const> const made = halfSpeed();
    EXPECT_EQ(125.0, made->toParameterTime(50));
    EXPECT_EQ(50.0, made->fromParameterTime(125));
}

TEST_F(MediaTimingTest, AMoveLeavesParameterTimeAlone)
{
    boost::shared_ptr<Clip> const made = halfSpeed();
    made->move(77);
    EXPECT_EQ(125.0, made->toParameterTime(50));
}

TEST_F(MediaTimingTest, ATrimOfTheStartKeepsKeyFramesWithTheirMoment)
{
    // What was 50 units after the start is now 10 units after it.
    boost::shared_ptr<Clip> const made = halfSpeed();
    made->trimStart(40);
    EXPECT_EQ(125.0, made->toParameterTime(10));
    EXPECT_EQ(10.0, made->fromParameterTime(125));
}

TEST_F(MediaTimingTest, ParameterTimeOfAStillIsMeasuredFromItsTrims)
{
    // 40 trimmed off, then 120 units to show 60: 10 / 2 + 40 = 45
    boost::shared_ptr<IMFile> const made = still(30, 100);
    made->trimStart(40);
    made->stretch(2.0);
    EXPECT_EQ(45.0, made->toParameterTime(10));
    EXPECT_EQ(10.0, made->fromParameterTime(45));
}

TEST_F(MediaTimingTest, LocalTimeCountsFromTheTrackStart)
{
    boost::shared_ptr<Clip> const made = clip(100, 200);
    made->setTrackStart(30);
    EXPECT_EQ(20, made->fromGlobalToParametricTime(50));
    EXPECT_EQ(-30, made->fromGlobalToParametricTime(0));
    EXPECT_EQ(20, still(0, 100)->fromGlobalToParametricTime(20));
}

TEST_F(MediaTimingTest, EffectTimeTakesTheTrackStartOffAfterTheConversion)
{
    // 51 / 2 + 100 - 30 = 95.5
    boost::shared_ptr<Clip> const made = halfSpeed();
    made->setTrackStart(30);
    EXPECT_EQ(95, made->globalTimeToEffectTime(51));
}

TEST_F(MediaTimingTest, EffectTimeIsCutTowardsZero)
{
    // -1 / 2 + 0 - 100 = -100.5
    boost::shared_ptr<Clip> const made = clip(0, 200);
    made->stretch(2.0);
    made->setTrackStart(100);
    EXPECT_EQ(-100, made->globalTimeToEffectTime(-1));
}

TEST_F(MediaTimingTest, EffectTimeOfAStillGoesByItsOwnClock)
{
    // 50 + 40 - 40 = 50
    boost::shared_ptr<IMFile> const made = still(30, 100);
    made->trimStart(40);
    EXPECT_EQ(50, made->globalTimeToEffectTime(50));
}

TEST_F(MediaTimingTest, TheTimesOfADeadProjectsMediaCannotBeAsked)
{
    boost::shared_ptr<Clip> const made = clip(0, 100);
    project.reset();
    EXPECT_THROW(made->trackRange(), boost::bad_weak_ptr);
    EXPECT_THROW(made->toParameterTime(0), boost::bad_weak_ptr);
    EXPECT_THROW(made->trackRangeWithStretch(2.0), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace test
}  // namespace tarn
