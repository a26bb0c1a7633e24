#pragma once

#include <string>

namespace Zn::GUI::AssetScheme
{
/** What a component implements to be laid out by the scheme; it keeps a Holder, which does the work.
    Most derive from Element, which has both. Thread: message.
*/
class Interface
{
public:
    virtual ~Interface() = default;

    /** The name of the rectangle it takes. */
    virtual const std::string& getElement() const = 0;

    /** The editor's size or the scheme has changed and the component has its new bounds: the time to make
        fonts, paths and cached images anew. It is repainted in any case.
    */
    virtual void schemeChanged() {}
};
} // namespace Zn::GUI::AssetScheme
