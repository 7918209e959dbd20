#pragma once

#include <cstring>

/// The object a façade forwards to: a façade is a pointer to its virtual table and one to its target.
template <class Target, class Facade>
Target& TargetOf(const Facade& facade)
{
    static_assert(sizeof(Facade) == 2 * sizeof(void*), "a façade holds nothing but its target");
    Target* target = nullptr;
    std::memcpy(&target, reinterpret_cast<const char*>(&facade) + sizeof(void*), sizeof target);
    return *target;
}
