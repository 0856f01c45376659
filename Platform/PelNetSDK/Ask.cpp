// Asking a device, or the answer kept from the last attempt.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/Ask.h"

#include <algorithm>
#include <utility>

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

/// A text in a buffer is ended by a NUL when there is room for one.
void EndText(void* buffer, std::size_t length, unsigned size)
{
    if (length < size) {
        static_cast<char*>(buffer)[length] = '\0';
    }
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
    // One byte beyond the longest document tells a longer one apart.
    const auto document = ReadStatusDocument(answer.body.Head(kLongestStatusDocument + 1));
    // A login page is no statement of the device: "wrong password" says more.
    if (answer.status >= 400 && (document || answer.status != 401)) {
        GiveStatus(space, answer.body);
    }
    SetLastFailure(JudgeRefusal(answer.status, kind, document));
    return 0;
}

int GiveAnswer(Session& session, const TransportRequest& request, const AnswerSpace& space,
               AnswerBody&& body)
{
    if (space.buffer == nullptr) {
        // A change without an answer buffer still has its status document told.
        if (space.statusSize > 0 && ReadStatusDocument(body.Head(kLongestStatusDocument + 1))) {
            GiveStatus(space, body);
        }
        return 1;
    }
    Report(space, body.Size());
    if (body.Size() > space.size) {
        session.Keep(request, space.size, std::move(body));
        return Fail(NET_ORB_BUFFER_TOO_SMALL);
    }
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
    if (auto kept = KeptAnswer::OfThisThread()->Take(*session, request, space.size)) {
        ++counters.fromMemory;
        return GiveAnswer(*session, request, space, std::move(*kept));
    }
    TransportAnswer answer;
    if (const unsigned error = session->Exchange(request, answer); error != NET_ORB_NOERROR) {
        return Fail(error);
    }
    if (answer.status < 200 || answer.status >= 300) {
        return GiveRefusal(kind, space, answer);
    }
    return GiveAnswer(*session, request, space, std::move(answer.body));
}

}  // namespace PelNet
