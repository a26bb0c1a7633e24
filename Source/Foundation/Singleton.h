#pragma once

#include <juce_core/juce_core.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

/** Objects that exist once in a process, however many plug-in instances it holds.

    `Singleton::get<T> (arguments...)` builds T from the arguments on its first use and returns the same
    object ever after. Whoever uses one keeps a UserToken while it does (each processor has one, and through
    it all it owns). When the last token goes, all objects are deleted in reverse order of their creation; a
    later first use builds anew. Thread: any, but on the audio thread only what is known to exist.
*/
namespace Zn::Singleton
{
/** What the ShutdownDeleter keeps of each object: deleting it deletes the object. */
class DeleterObjectBase
{
public:
    DeleterObjectBase() = default;
    virtual ~DeleterObjectBase() = default;

    DeleterObjectBase (const DeleterObjectBase&) = delete;
    DeleterObjectBase& operator= (const DeleterObjectBase&) = delete;
};

/** Owns all objects, in the order of their creation, and counts their users. Is itself never destroyed: were
    it, objects with threads would end them from static destruction, under the loader's lock.
*/
class ShutdownDeleter
{
public:
    static ShutdownDeleter& getInstance();

    enum class Release
    {
        inReverseOrder,
        afterAllOthers
    };

    void add (std::shared_ptr<DeleterObjectBase> object, Release release);

    void addUser();
    void removeUser(); // deletes everything when it was the last

private:
    void deleteAll();
    std::shared_ptr<DeleterObjectBase> takeLast();

    std::mutex userLock; // held while everything is deleted: a new user waits for that and then builds anew
    int numUsers = 0;

    std::mutex objectLock; // never held while an object is built or deleted, both of which may need others
    std::vector<std::shared_ptr<DeleterObjectBase>> objects;
};

/** Keeps all singletons alive. Never held by a singleton. Thread: any. */
class UserToken
{
public:
    UserToken() { ShutdownDeleter::getInstance().addUser(); }
    UserToken (const UserToken&) : UserToken() {}
    UserToken& operator= (const UserToken&) = default;
    ~UserToken() { ShutdownDeleter::getInstance().removeUser(); }
};

/** Owns the one T, and makes it known to all who ask for it until it dies. */
template <typename T>
class DeleterObject : public DeleterObjectBase
{
public:
    template <typename... Args>
    explicit DeleterObject (Args&&... args) : object (std::forward<Args> (args)...)
    {
        current.store (&object, std::memory_order_release);
    }

    ~DeleterObject() override { current.store (nullptr, std::memory_order_release); }

    template <typename... Args>
    static T& getOrCreate (Args&&... args)
    {
        if (auto* existing = current.load (std::memory_order_acquire))
            return *existing;

        const juce::SpinLock::ScopedLockType lock (firstUse);

        if (auto* existing = current.load (std::memory_order_acquire))
            return *existing;

        // Added when it is complete: what its constructor asked for has then been added before it.
        auto created = std::make_shared<DeleterObject> (std::forward<Args> (args)...);
        ShutdownDeleter::getInstance().add (created, releaseOrder());
        return created->object;
    }

private:
    static constexpr ShutdownDeleter::Release releaseOrder() noexcept
    {
        if constexpr (requires { T::releasedAfterAllOthers; })
            return ShutdownDeleter::Release::afterAllOthers;
        else
            return ShutdownDeleter::Release::inReverseOrder;
    }

    inline static std::atomic<T*> current { nullptr };
    inline static juce::SpinLock firstUse;

    T object;
};

/** The one T of this process, valid as long as the caller's UserToken. Its constructor may ask
    for others, not for itself.
*/
template <typename T, typename... Args>
T& get (Args&&... args)
{
    return DeleterObject<T>::getOrCreate (std::forward<Args> (args)...);
}
} // namespace Zn::Singleton
