// One object of a type for the whole process.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace Keel
{

/// Instance() makes the object on its first call, on whichever thread; later calls return it.
/// It is never destroyed, so it may be used while other static objects go away.
template <class T>
class CSingleton
{
public:
    static T& Instance()
    {
        static T* const instance = new T;
        return *instance;
    }
};

}  // namespace Keel
