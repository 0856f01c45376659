// The operations that faults are tried on.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/JsonOperations.h"
#include "support/OperationFamily.h"
#include "support/Operations.h"

namespace TestSupport
{

/// The content of the caller's record or text after a call.
enum class Held
{
    Defaults,  ///< or the caller's own content, where a failure leaves it unchanged
    Whole,     ///< all of the sound answer
    Other,
    Unknown  ///< the answer is not read, or is appended
};

struct Given
{
    bool success = false;
    unsigned err = 0;
    Held held = Held::Unknown;
    std::string bytes{};  ///< for raw operations
};

struct Subject
{
    std::string name;
    Family family = kTransparent;
    Policy policy{16384, 16384, 16384000, false, false};
    std::string sound;   ///< an answer that is read completely
    std::string root{};  ///< its root element, or the only member of its object
    std::function<Given()> ask{};
    bool needsFlag = false;
    bool tellsError = true;
    bool setsLastError = true;
    bool convertsChannel = false;
    const OperationRow* xml = nullptr;
    const JsonOperationRow* json = nullptr;

    [[nodiscard]] bool Is(unsigned families) const { return (family & families) != 0; }
    /// Whether the error number makes the buffer grow.
    [[nodiscard]] bool GrowsOn(unsigned error) const
    {
        return error == 43 || (error == 1001 && policy.growsOn1001);
    }
};

/// Every operation over the SDK.
std::vector<Subject> AllOperations();

/// One or two of each family, with documents that fill their records.
std::vector<Subject> FamilyModels();

/// What the transparent manager reported about its last request.
struct ManagerReport
{
    int type = 0;
    int code = 0;
    std::string status = "before";
    std::vector<int> sdkErrors{};
    std::vector<int> xmlErrors{};
    std::vector<std::pair<int, std::string>> translated{};
};
extern ManagerReport managerReport;

enum class CallBack
{
    None,
    SdkError,
    XmlError,
    XmlErrorTrans
};
/// Which of the manager's callbacks throws, and how often it did.
extern CallBack throwingCallBack;
extern unsigned callBacksThrown;

}  // namespace TestSupport
