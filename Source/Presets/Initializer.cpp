#include "Presets/Initializer.h"

namespace Zn::Presets::Initializer
{
void Initializers::prepare (std::type_index type,
                            const CreateDocument& createDocument,
                            const std::function<void()>& install)
{
    const std::scoped_lock guard (lock);

    if (types.contains (type))
        return;

    types[type] = { createDocument() };
    install();
}

nlohmann::json Initializers::getDocument (std::type_index type)
{
    const std::scoped_lock guard (lock);
    const auto found = types.find (type);
    return found == types.end() ? nlohmann::json() : found->second.document;
}
} // namespace Zn::Presets::Initializer
