// Asking a device, or taking the answer kept from the last attempt.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/Ask.h"

#include <algorithm>
#include <utility>

#include "PelNetSDK/Limits.h"
#include "PelNetSDK/Session.h"
#include "PelNetSDK/Statistics.h"

namespace PelNet
{

namespace
{

void Report(const AnswerSpace& space, std::size_t bytes)
{
    if (space.returned != nullptr) {
        *space.returned = static_cast<unsigned>(bytes);
    }
}

/// Ends a text with a NUL if there is room for it.
void EndText(void* buffer, std::size_t length, unsigned size)
{
    if (length < size) {
        static_cast<char*>(buffer)[length] = '\0';
    }
}

/// Reads one byte more than the longest status document, to detect longer ones.
std::optional<StatusDocument> StatusDocumentIn(const AnswerBody& body)
{
    return ReadStatusDocument(body.Head(limits::kStatusDocument + 1));
}

void GiveStatus(const AnswerSpace& space, const AnswerBody& body)
{
    const std::size_t copied = body.CopyTo(space.status, space.statusSize);
    EndText(space.status, copied, space.statusSize);
    if (space.returnsStatusSize) {
        Report(space, copied);
    }
}

int GiveRefusal(RequestKind kind, const AnswerSpace& space, const TransportAnswer& answer)
{
    const auto document = StatusDocumentIn(answer.body);
    // A login page is not the device's own statement. "Wrong password" says more.
    if (answer.status >= 400 && (document || answer.status != 401)) {
        GiveStatus(space, answer.body);
    }
    SetLastFailure(JudgeRefusal(answer, kind, document));
    return 0;
}

/// Keeps the answer, or only that it exceeded its limit, for a repeat with a larger buffer. So a
/// growing buffer costs one exchange, and a change is carried out once.
int GiveTooSmall(Session& session, const TransportRequest& request, const AnswerSpace& space,
                 KeptAnswer::Content&& answer)
{
    Report(space, answer.size);
    answer.session = &session;
    answer.line = request.line;
    answer.requestBody = request.body;
    answer.bufferSize = space.size;
    session.Keep(std::move(answer));
    return Fail(NET_ORB_BUFFER_TOO_SMALL);
}

int GiveTooLarge(Session& session, const TransportRequest& request, const AnswerSpace& space,
                 const TransportAnswer& answer)
{
    const std::size_t limit = answer.limit;
    if (limit >= limits::kPackage) {
        return Fail(NET_ORB_ANSWER_TOO_LARGE);
    }
    // Only a GET may reach the device again for a larger buffer.
    const bool canGrow = request.IsGet() && answer.announcedSize <= limits::kPackage;
    return GiveTooSmall(session, request, space,
                        {.body = std::nullopt,
                         .limit = limit,
                         .size = canGrow ? static_cast<std::size_t>(answer.announcedSize) : 0});
}

int GiveAnswer(Session& session, const TransportRequest& request, const AnswerSpace& space,
               AnswerBody&& body)
{
    if (space.buffer == nullptr) {
        // Report the status document of a change even without an answer buffer.
        if (space.statusSize > 0 && StatusDocumentIn(body)) {
            GiveStatus(space, body);
        }
        return 1;
    }
    const std::size_t size = body.Size();
    if (size > space.size) {
        const std::size_t limit = body.Limit();
        return GiveTooSmall(session, request, space,
                            {.body = std::move(body), .limit = limit, .size = size});
    }
    Report(space, size);
    EndText(space.buffer, body.MoveTo(space.buffer, space.size), space.size);
    return 1;
}

}  // namespace

int Fail(unsigned error) noexcept
{
    SetLastFailure({error, 0, 0});
    return 0;
}

int Ask(int userID, RequestKind kind, const TransportRequest& request, const AnswerSpace& space)
{
    Report(space, 0);
    if (!space.Sound()) {
        return Fail(NET_ORB_PARAMETER_ERROR);
    }
    if (space.statusSize > 0) {
        *static_cast<char*>(space.status) = '\0';
    }
    const std::shared_ptr<Session> session = SessionTable::Instance().Find(userID);
    if (!session) {
        return Fail(NET_ORB_NOINIT);
    }
    std::size_t limit = std::max<std::size_t>(space.limit, space.size);
    if (auto kept = KeptAnswer::OfThisThread()->Take(*session, request, space.size)) {
        if (kept->body) {
            ++counters.fromMemory;
            return GiveAnswer(*session, request, space, std::move(*kept->body));
        }
        if (space.size <= kept->limit || !request.IsGet()) {
            ++counters.fromMemory;
            return GiveTooSmall(*session, request, space, std::move(*kept));
        }
        limit = space.size;
    }
    TransportAnswer answer(space.buffer == nullptr ? limits::kRefusal : limit);
    const unsigned error = session->Exchange(request, answer);
    if (error == NET_ORB_ANSWER_TOO_LARGE && space.buffer != nullptr) {
        return GiveTooLarge(*session, request, space, answer);
    }
    if (error != NET_ORB_NOERROR && error != NET_ORB_ANSWER_TOO_LARGE) {
        return Fail(error);
    }
    return answer.IsSuccess() ? GiveAnswer(*session, request, space, std::move(answer.body))
                              : GiveRefusal(kind, space, answer);
}

}  // namespace PelNet
