#pragma once

#include "hostile/SourceMaker.h"
#include "hostile/Verdict.h"
#include "support/MediaFiles.h"

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace test {

/// Judges files of a folder that goes with the process.
class HostileTest : public ::testing::Test
{
protected:
    /// A path in the folder; nothing need be there.
    static std::string at(std::string const& name) { return MediaFiles::folder() + "/" + name; }

    /// Whether no loader wants the file, and nothing happened that may not.
    static ::testing::AssertionResult isUnclaimed(std::string const& path)
    {
        return isRefused(path, "No appropriate stats loader for file: ");
    }
    /// Whether the file looks like a media but cannot be opened, and nothing else happened.
    static ::testing::AssertionResult isUnreadable(std::string const& path)
    {
        return isRefused(path, "Unable to initialize file: ");
    }
    static ::testing::AssertionResult isLoaded(std::string const& path)
    {
        return isRefused(path, "");
    }
    /// Whether the file gives that failure; with an empty text, whether it is loaded.
    static ::testing::AssertionResult isRefused(std::string const& path, std::string const& failure)
    {
        Verdict const verdict = judge(path, &makeSource);
        if (verdict.fault.empty() && verdict.failure == failure) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure()
               << path << ": \"" << verdict.failure << "\" " << verdict.fault;
    }
    /// Whether the file is loaded or refused by one of the reader's own texts, and nothing else
    /// happened.
    static ::testing::AssertionResult isHarmless(std::string const& path)
    {
        std::string const fault = judge(path, &makeSource).fault;
        return fault.empty() ? ::testing::AssertionSuccess()
                             : ::testing::AssertionFailure() << path << ": " << fault;
    }

    /// Small files that can be read.
    static std::string picture()
    {
        return MediaFiles::made("one.png", MediaFiles::picture(1, "25") + " -pix_fmt rgb24");
    }
    static std::string movie()
    {
        return MediaFiles::made("two.mp4", MediaFiles::picture(3, "25") + " -c:v mpeg4");
    }
    static std::string sound() { return MediaFiles::made("tone.wav", MediaFiles::tone(1)); }
};

}  // namespace test
}  // namespace tarn
