#pragma once

namespace tarn {

class AddMediaGuard;
class InternalProject;
class Project;
class ProjectEditRate;
class ReadWriteMutex;
class SharedReadLock;
class SubProject;
class ThreadSafe;

}  // namespace tarn
