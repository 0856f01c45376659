// Converting UTF-8 to the client's local code page.
// SPDX-License-Identifier: Apache-2.0
#include "Keel/Encoding.h"

#include "CodePage/CodePage.h"

namespace Keel
{

std::string UTF8ToLocal(std::string_view utf8)
{
    return CodePage::Utf8ToAnsi(utf8);
}

}  // namespace Keel
