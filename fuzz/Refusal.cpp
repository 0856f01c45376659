// Fuzzes the body of a refusal.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "PelNetSDK/AnswerBody.h"
#include "PelNetSDK/Limits.h"
#include "PelNetSDK/Login.h"
#include "PelNetSDK/Refusal.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"

namespace Fuzz
{
namespace
{

using PelNet::AnswerBody;
using PelNet::StatusDocument;

bool AreSame(const std::optional<StatusDocument>& a, const std::optional<StatusDocument>& b)
{
    return a.has_value() == b.has_value() &&
           (!a || (a->subStatusCode == b->subStatusCode && a->errorCode == b->errorCode &&
                   a->deviceCode == b->deviceCode));
}

/// The pieces in which a body arrives do not matter; its text chooses them.
void CheckPieces(const std::string& text)
{
    const std::size_t limit = text.size() - (text.size() % 3 == 0 ? text.size() / 2 : 0);
    AnswerBody body(limit);
    std::size_t sent = 0;
    bool fits = true;
    while (fits && sent < text.size()) {
        const auto wanted = static_cast<unsigned char>(text[sent]) % 32U + 1U;
        const std::string piece = text.substr(sent, wanted);
        fits = body.Append(piece.data(), piece.size());
        sent += fits ? piece.size() : 0;
    }
    Require(fits == (text.size() <= limit), "a body takes what its limit allows");
    Require(body.Size() == sent && body.Head(limit + 1) == text.substr(0, sent),
            "a body holds what was sent");
    for (const std::size_t count : {std::size_t{0}, sent / 2, sent, sent + 1}) {
        std::string copy(count, '\1');
        const std::size_t copied = body.CopyTo(copy.data(), count);
        Require(copied == std::min(count, sent) && copy.substr(0, copied) == text.substr(0, copied),
                "a copy is the beginning");
    }
    AnswerBody whole(limit);
    Require(whole.Adopt(std::string(text)) == (text.size() <= limit),
            "a body takes a whole text as it takes its pieces");
}

void CheckJudgement(const std::optional<StatusDocument>& document)
{
    for (const int httpStatus : {0, 199, 301, 400, 401, 403, 404, 405, 500, 503, 599, 600}) {
        for (const auto kind : {PelNet::RequestKind::Ability, PelNet::RequestKind::Request}) {
            const PelNet::Failure failure = PelNet::JudgeRefusal(httpStatus, kind, document);
            Require(failure.error != NET_ORB_NOERROR &&
                        std::string("unknown error") != NET_ORB_GetErrorText(failure.error),
                    "a refusal is an error that has a text");
            Require(document ? failure.modelCode == document->errorCode &&
                                   failure.deviceCode == document->deviceCode
                             : failure.modelCode == 0 && failure.deviceCode == 0,
                    "codes are the document's");
        }
    }
}

}  // namespace

void Refusal(const std::string& text)
{
    const auto document = PelNet::ReadStatusDocument(text);
    Require(AreSame(document, PelNet::ReadStatusDocument(text)), "a refusal reads alike each time");
    Require(!document || text.size() <= PelNet::limits::kStatusDocument,
            "a status document is short");
    // No document may have blanks before a declaration.
    if (document && text[0] == '{' && text.size() + 3 <= PelNet::limits::kStatusDocument) {
        Require(AreSame(document, PelNet::ReadStatusDocument(" \r\n" + text)),
                "blanks before a document are nothing");
    }
    CheckJudgement(document);
    CheckPieces(text);
}

}  // namespace Fuzz
