#pragma once

#include "project/ProjectEditRate.h"
#include "project/ReadWriteMutex.h"
#include "project/ThreadSafe.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/rational.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

namespace tarn {
namespace test {

/// The least that owned objects need of a project: a lock, and the length of an edit unit.
class FakeProject : public ThreadSafe,
                    public ProjectEditRate,
                    public boost::enable_shared_from_this<FakeProject>
{
public:
    static boost::shared_ptr<FakeProject> create(unsigned long rate = 30)
    {
        return boost::shared_ptr<FakeProject>(new FakeProject(rate));
    }

    ReadWriteMutex& mutex() const override { return m_mutex; }
    boost::rational<unsigned long> editRate() const override { return m_editRate; }

    /// What the objects of this project are built with.
    boost::weak_ptr<ThreadSafe const> weak() const { return shared_from_this(); }

private:
    explicit FakeProject(unsigned long rate) : m_editRate(rate) {}

    mutable ReadWriteMutex m_mutex;
    boost::rational<unsigned long> m_editRate;
};

}  // namespace test
}  // namespace tarn
