#pragma once

#include "clipbin/Source.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"
#include "support/FakeProject.h"
#include "support/FakeStatsLoader.h"
#include "support/Thrown.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn {
namespace test {

/// Parentless medias of sources that exist only by name.
class MediaKindTest : public ::testing::Test
{
protected:
    /// 10,000 units of picture (640 x 480) on track 0, of stereo sound (44,100 Hz, 16 bits) on 1.
    boost::shared_ptr<Source> movie(std::string const& file = "fake:movie") const
    {
        return source(file, {FakeStatsLoader::picture(10000), FakeStatsLoader::sound(10000)});
    }
    /// A still picture of 640 x 480 on track 0.
    boost::shared_ptr<Source> picture() const
    {
        return source("fake:picture", {FakeStatsLoader::still()});
    }
    boost::shared_ptr<Source> source(std::string const& file,
                                     std::vector<FakeStatsLoader::TrackStats> const& tracks) const
    {
        FakeStatsLoader::instance().set(file, tracks);
        return Source::create(project, project->weak(), file);
    }

    /// The names of all parameters in order, each followed by a blank.
    static std::string parameterNames(Parametric const& owner)
    {
        std::string names;
        auto const parameters = owner.parameterVector();
        for (boost::shared_ptr<ParameterInterface const> const& parameter : *parameters)
            names += parameter->ident() + " ";
        return names;
    }
    static char const* visualParameterNames()
    {
        return "sourceCrop0 sourceCrop1 sourceCrop2 sourceCrop3 "
               "geometryCrop0 geometryCrop1 geometryCrop2 geometryCrop3 opacity "
               "translation0 translation1 translation2 rotation0 rotation1 rotation2 "
               "shear0 shear1 scale0 scale1 scale2 anchor0 anchor1 anchor2 ";
    }
    template <class Action>
    static std::string refusal(Action const& action)
    {
        return thrownBy<TarnMediaLibException>(action).what();
    }

    boost::shared_ptr<FakeProject> const project = FakeProject::create();
};

}  // namespace test
}  // namespace tarn
