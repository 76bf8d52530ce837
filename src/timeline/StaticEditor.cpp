#include "timeline/StaticEditor.h"

#include "datatypes/SaturatedArithmetic.h"

#include <limits>

namespace tarn {

StaticEditor::StaticEditor(MediaImpl* media, long long* trimStartSum)
    : MediaEditor(media), m_trimStartSum(trimStartSum)
{}

void StaticEditor::move(long long offset, Range<long long>& track, Range<double>&)
{
    track.start = saturatedSum(track.start, offset);
}

void StaticEditor::trimStart(long long offset, Range<long long>& track, Range<double>&)
{
    track.start = saturatedSum(track.start, offset);
    track.duration = saturatedDifference(track.duration, offset);
    if (m_trimStartSum)
        *m_trimStartSum = saturatedSum(*m_trimStartSum, offset);
}

bool StaticEditor::validTrimStart(long long, Range<long long>&, Range<double>&)
{
    return true;
}

void StaticEditor::trimEnd(long long offset, Range<long long>& track, Range<double>&)
{
    track.duration = saturatedDifference(track.duration, offset);
}

bool StaticEditor::validTrimEnd(long long, Range<long long>&, Range<double>&)
{
    return true;
}

long long StaticEditor::trimEndLimit(Range<long long> const&, Range<double> const&, double const&,
                                     double const&) const
{
    return std::numeric_limits<long long>::min();
}

long long StaticEditor::trimStartLimit(Range<long long> const&, Range<double> const&, double const&,
                                       double const&) const
{
    return std::numeric_limits<long long>::min();
}

}  // namespace tarn
