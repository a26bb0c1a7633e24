#include "Presets/Reflection/Reflector.h"

#include "Presets/Reflection/TextNumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>

namespace Zn
{
namespace
{
template <typename Number>
Number clampedTo (double value) noexcept
{
    if (std::isnan (value))
        return {};

    constexpr auto lowest = static_cast<double> (std::numeric_limits<Number>::lowest());
    constexpr auto highest = static_cast<double> (std::numeric_limits<Number>::max());
    return static_cast<Number> (std::clamp (value, lowest, highest));
}

std::int32_t clampedToInt32 (std::int64_t value) noexcept
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t> (std::clamp<std::int64_t> (value, Limits::min(), Limits::max()));
}

/** The conversions from what a document holds to what a field holds; none leaves the field alone. */
template <typename Field>
struct FieldFrom;

template <>
struct FieldFrom<bool>
{
    std::optional<bool> operator() (bool value) const noexcept { return value; }
    std::optional<bool> operator() (std::int64_t value) const noexcept { return value >= 1; }
    std::optional<bool> operator() (double value) const noexcept { return value >= 1.0; }
    std::optional<bool> operator() (const std::string& text) const
    {
        return Serializing::integerFromText (text) >= 1;
    }
    std::optional<bool> operator() (std::monostate) const noexcept { return {}; }
};

template <>
struct FieldFrom<std::int32_t>
{
    using Result = std::optional<std::int32_t>;

    Result operator() (bool value) const noexcept { return value ? 1 : 0; }
    Result operator() (std::int64_t value) const noexcept { return clampedToInt32 (value); }
    Result operator() (double value) const noexcept { return clampedTo<std::int32_t> (value); }
    Result operator() (const std::string& text) const
    {
        return clampedToInt32 (Serializing::integerFromText (text));
    }
    Result operator() (std::monostate) const noexcept { return {}; }
};

template <>
struct FieldFrom<double>
{
    std::optional<double> operator() (bool value) const noexcept { return value ? 1.0 : 0.0; }
    std::optional<double> operator() (std::int64_t value) const noexcept
    {
        return static_cast<double> (value);
    }
    std::optional<double> operator() (double value) const noexcept { return value; }
    std::optional<double> operator() (const std::string& text) const
    {
        return Serializing::doubleFromText (text);
    }
    std::optional<double> operator() (std::monostate) const noexcept { return {}; }
};

template <>
struct FieldFrom<std::string>
{
    std::optional<std::string> operator() (const std::string& text) const { return text; }
    std::optional<std::string> operator() (const auto&) const noexcept { return {}; }
};

/** Every field crosses as one of the types that a ReflectedValue holds; `assign` takes what was loaded. */
template <typename Held, typename FromHeld>
void addAs (ReflectorBase& r, const std::string& name, const Held& held, FromHeld&& assign)
{
    using Value = std::conditional_t<std::is_same_v<Held, std::int32_t>, std::int64_t, Held>;

    if (! r.isLoading())
        r.setValue (name, ReflectedValue (static_cast<Value> (held)));
    else if (const auto loaded = std::visit (FieldFrom<Held>(), r.getValue (name)))
        assign (*loaded);
}
} // namespace

bool ReflectorBase::isLoading() const
{
    return false;
}

ReflectorBase* ReflectorBase::getChild (const std::string&)
{
    return nullptr;
}

ReflectorBase* ReflectorBase::getArrayItem (int)
{
    return nullptr;
}

ReflectorBase* ReflectorBase::addArrayItem()
{
    return getChild ({});
}

void ReflectorBase::setValue (const std::string&, const ReflectedValue&) {}

ReflectedValue ReflectorBase::getValue (const std::string&) const
{
    return std::monostate();
}

std::string ReflectorBase::getKey (int) const
{
    return {};
}

int ReflectorBase::getSize() const
{
    return 0;
}

Reflector* Reflector::getChild (const std::string&)
{
    return nullptr;
}

Reflector* Reflector::getArrayItem (int)
{
    return nullptr;
}

Reflector* Reflector::addArrayItem()
{
    return getChild ({});
}

void Reflector::add (const std::string& name, bool& value)
{
    addAs (*this, name, value, [&value] (bool loaded) { value = loaded; });
}

void Reflector::add (const std::string& name, std::int32_t& value)
{
    addAs (*this, name, value, [&value] (std::int32_t loaded) { value = loaded; });
}

void Reflector::add (const std::string& name, double& value)
{
    addAs (*this, name, value, [&value] (double loaded) { value = loaded; });
}

void Reflector::add (const std::string& name, float& value)
{
    addAs (*this, name, static_cast<double> (value), [&value] (double loaded) {
        value = clampedTo<float> (loaded);
    });
}

void Reflector::add (const std::string& name, std::string& value)
{
    addAs (*this, name, value, [&value] (const std::string& loaded) { value = loaded; });
}

void Reflector::add (const std::string& name, juce::String& value)
{
    addAs (*this, name, value.toStdString(), [&value] (const std::string& loaded) {
        value = juce::String::fromUTF8 (loaded.data(), static_cast<int> (loaded.size()));
    });
}

void Reflector::add (const std::string& name, Version& value)
{
    addAs (*this, name, value.toText(), [&value] (const std::string& loaded) {
        value = Version::fromText (loaded);
    });
}
} // namespace Zn
