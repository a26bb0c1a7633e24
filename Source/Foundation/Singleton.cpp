#include "Foundation/Singleton.h"

namespace Zn::Singleton
{
ShutdownDeleter& ShutdownDeleter::getInstance()
{
    static union Storage
    {
        Storage() : deleter() {}
        ~Storage() {}

        ShutdownDeleter deleter;
    } storage;

    return storage.deleter;
}

void ShutdownDeleter::add (std::shared_ptr<DeleterObjectBase> object, Release release)
{
    const std::scoped_lock lock (objectLock);
    objects.insert (release == Release::afterAllOthers ? objects.begin() : objects.end(), std::move (object));
}

void ShutdownDeleter::addUser()
{
    const std::scoped_lock lock (userLock);
    ++numUsers;
}

void ShutdownDeleter::removeUser()
{
    const std::scoped_lock lock (userLock);

    if (--numUsers == 0)
        deleteAll();
}

void ShutdownDeleter::deleteAll()
{
    // One at a time, as a destructor may still ask for another object, even one that has to be built again.
    while (auto object = takeLast())
        object.reset();

    const std::scoped_lock lock (objectLock);
    objects.shrink_to_fit();
}

std::shared_ptr<DeleterObjectBase> ShutdownDeleter::takeLast()
{
    const std::scoped_lock lock (objectLock);

    if (objects.empty())
        return nullptr;

    auto last = std::move (objects.back());
    objects.pop_back();
    return last;
}
} // namespace Zn::Singleton
