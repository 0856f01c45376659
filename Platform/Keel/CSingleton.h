// One object of a type for the whole process.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace Keel
{

/// Holds one object of type T. It is created on first use and never destroyed, so it can be used
/// while other static objects are destroyed.
template <class T>
class CSingleton
{
public:
    /// The object. Safe to call from any thread.
    static T& Instance()
    {
        static T* const instance = new T;
        return *instance;
    }
};

}  // namespace Keel
