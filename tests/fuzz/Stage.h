#pragma once

#include "fuzz/TypedParameters.h"
#include "support/ModelTest.h"

#include "clipbin/ClipBinFwd.h"
#include "commands/TrackMapCommand.h"
#include "datatypes/DatatypesFwd.h"
#include "effects/EffectsFwd.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarn {
namespace test {

/// Where a random session begins, and the fixture of the test that a failing one is printed as.
///
/// Beside the timeline of the strip there is a pool of parentless medias of every kind, two of them
/// of sources shorter than the others', one of a source that is not in the bin.
class Stage : public ModelTest
{
public:
    static int const k_poolSize = 14;
    /// In the pool: of a source not in the bin, and without any length.
    static int const k_foreign = 11;
    static int const k_empty = 12;
    /// A still picture.
    static int const k_still = 4;

    using ModelTest::lock;
    using ModelTest::project;
    using ModelTest::source;
    using ModelTest::strip;
    using ModelTest::timeline;
    using ModelTest::track;

    void begin(std::string const& strip);
    /// Takes that project, emptied, instead of a new one. To be called before begin().
    void takeOver(boost::shared_ptr<InternalProject> const& other);
    /// Without mixers, sources, clippings and history, as a new project is.
    static void empty(InternalProject& used);

    boost::shared_ptr<Media> const& pool(int index) const { return m_pool.at(index); }
    /// The media that starts at that time, edit units; empty when none does.
    boost::shared_ptr<Media> at(std::string const& trackName, long long start) const;
    /// Of the clipboard, by its order.
    boost::shared_ptr<Clipping> clipping(int index) const;
    /// Of the bin, by its order; empty when it has fewer.
    boost::shared_ptr<Source> sourceAt(int index) const;
    boost::shared_ptr<Source> const& foreignSource() const { return m_foreign; }
    /// The media's number parameters, by their order; empty when it has fewer.
    boost::shared_ptr<Parameter<double> const> numberOf(boost::shared_ptr<Media const> const& media,
                                                        int index) const;
    /// The host's own parameter of that type.
    template <class T>
    boost::shared_ptr<Parameter<T> const> typed() const
    {
        return m_typed->of<T>();
    }
    TypedParameters const& typedParameters() const { return *m_typed; }
    template <class T>
    T value(std::uint32_t number) const
    {
        return someValue<T>(*this, number);
    }
    boost::shared_ptr<Effect> blur() const;
    boost::shared_ptr<ScreenMetaData const> metaData() const;
    /// Maps a track of what is pasted, by its place, to a track of the timeline.
    static void mapVisual(TrackMapCommand& command, boost::shared_ptr<Timeline> const& from,
                          unsigned place, boost::shared_ptr<Track> const& to);
    static void mapAudio(TrackMapCommand& command, boost::shared_ptr<Timeline> const& from,
                         unsigned place, boost::shared_ptr<Track> const& to);
    /// A movie of picture and sound of that many edit units, which is in the bin or not.
    boost::shared_ptr<Source> movie(std::string const& name, long long length, bool loaded);

private:
    std::vector<boost::shared_ptr<Media>> m_pool;
    boost::shared_ptr<Source> m_foreign;
    std::unique_ptr<TypedParameters> m_typed;
};

}  // namespace test
}  // namespace tarn
