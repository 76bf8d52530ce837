#pragma once

namespace tarn {

/// How a project's lock deals with threads that read; chosen when the project is created.
enum class LockPolicy
{
    /// Readers are counted, not known. Edits on one thread at a time, and at most one other thread
    /// may read while one edits; a thread that only reads and asks for an edit waits for ever.
    Counted,
    /// Readers are known by their thread. Any number of threads may read, and any may edit; each
    /// gets in by the order in which they came. A thread that reads and asks for an edit is told by
    /// a ThreadLockingException. A read lock ends on the thread that took it.
    Strict
};

}  // namespace tarn
