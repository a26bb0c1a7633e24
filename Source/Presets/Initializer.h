#pragma once

#include <nlohmann/json.hpp>

#include <functional>
#include <map>
#include <mutex>
#include <typeindex>

namespace Zn::Presets::Initializer
{
/** What the first object of a library type was like before anything was loaded into it. */
struct SingleInitializer
{
    nlohmann::json document;
};

/** The first use of every library type in the process. Get it as a Singleton. Thread: any but audio. */
class Initializers
{
public:
    using CreateDocument = std::function<nlohmann::json()>;

    /** The first time for a type: keeps its document, then does `install`. Another thread that comes with the
        same type meanwhile waits, since it needs what is being installed.
    */
    void prepare (std::type_index type,
                  const CreateDocument& createDocument,
                  const std::function<void()>& install);

    /** Null before the type's first use. */
    nlohmann::json getDocument (std::type_index type);

private:
    std::mutex lock;
    std::map<std::type_index, SingleInitializer> types;
};
} // namespace Zn::Presets::Initializer
