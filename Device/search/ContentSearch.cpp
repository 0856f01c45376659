// Searches recorded content.
// SPDX-License-Identifier: Apache-2.0
#include "Device/search/ContentSearch.h"

#include <algorithm>
#include <set>

#include <libxml/tree.h>

#include "Device/Limits.h"
#include "Device/document/DateTime.h"
#include "Device/document/Text.h"
#include "Device/document/XmlTree.h"
#include "Device/search/Page.h"
#include "Device/search/Recordings.h"
#include "Device/search/SearchPage.h"

namespace Device
{
namespace
{

constexpr int kMostResults = 100;
constexpr size_t kLongestSearchId = 64;

// The part of a search description that matters here. Kinds of content and metadata do not: there
// is only one of each.
struct Description
{
    std::string searchId;
    std::set<int> tracks;         // empty: all
    std::vector<TimeSpan> spans;  // empty: all time
    int position = 0;
    int size = 0;

    [[nodiscard]] bool Wants(const Recording& recording) const
    {
        return (tracks.empty() || tracks.contains(recording.track)) &&
               (spans.empty() || std::ranges::any_of(spans, [&](const TimeSpan& span) {
                    return recording.start < *span.end && recording.end > *span.start;
                }));
    }
};

bool ReadTracks(_xmlNode* root, std::set<int>& tracks)
{
    const _xmlNode* list = ElementFrom(root->children, "trackIDList");
    for (_xmlNode* track = list == nullptr ? nullptr : ElementFrom(list->children, "trackID");
         track != nullptr; track = ElementFrom(track->next, "trackID")) {
        int number = 0;
        if (!ReadNumber(TextOf(track), number) || number < 0) {
            return false;
        }
        tracks.insert(number);
    }
    return true;
}

bool ReadSpans(_xmlNode* root, std::vector<TimeSpan>& spans)
{
    const _xmlNode* list = ElementFrom(root->children, "timeSpanList");
    for (_xmlNode* span = list == nullptr ? nullptr : ElementFrom(list->children, "timeSpan");
         span != nullptr; span = ElementFrom(span->next, "timeSpan")) {
        const auto start = ReadDateTime(ChildText(span, "startTime"));
        const auto end = ReadDateTime(ChildText(span, "endTime"));
        if (!start || !end || *start > *end) {
            return false;
        }
        spans.push_back({start, end});
    }
    return true;
}

std::optional<Description> ReadDescription(_xmlNode* root)
{
    Description read;
    read.searchId = ChildText(root, "searchID");
    const std::string position = ChildText(root, "searchResultPosition");
    const bool sensible =
        !read.searchId.empty() && read.searchId.size() <= kLongestSearchId &&
        ReadNumber(ChildText(root, "maxResults"), read.size) && read.size > 0 &&
        (position.empty() || (ReadNumber(position, read.position) && read.position >= 0)) &&
        ReadTracks(root, read.tracks) && ReadSpans(root, read.spans);
    return sensible ? std::optional(std::move(read)) : std::nullopt;
}

class ContentSearch : public Behaviour
{
public:
    explicit ContentSearch(const Profile& profile) : profile_(profile)
    {
        std::vector<int> channels;
        for (const auto& [sdk, protocol] : profile.channels) {
            channels.push_back(protocol);
        }
        if (profile.past) {
            if (channels.size() * static_cast<size_t>(profile.past->days) > kMostChannelDays) {
                throw StateFault("\"recordings\": too many days for so many channels");
            }
            recordings_ = MakeRecordings(*profile.past, channels);
        }
    }

    std::optional<Response> Answer(const ParsedRequest& request) override
    {
        if (!profile_.past ||
            request.path != std::vector<std::string>{"TARN", "ContentMgmt", "search"}) {
            return std::nullopt;
        }
        if (request.method != "POST") {
            return MakeMethodNotAllowed(request.target, {"POST"});
        }
        if (request.body.size() > kMostSearchText) {
            return MakeStatus(Outcome::kTooLarge, request.target);
        }
        return Search(request);
    }

private:
    [[nodiscard]] Response Search(const ParsedRequest& request) const
    {
        const XmlTree tree = request.document.form == RequestDocument::Form::Xml
                                 ? ReadXmlTree(request.body)
                                 : nullptr;
        if (!tree) {
            return MakeStatus(Outcome::kBadXmlFormat, request.target);
        }
        if (NameOf(RootOf(tree)) != "CMSearchDescription") {
            return MakeStatus(Outcome::kBadXmlContent, request.target);
        }
        const std::optional<Description> description = ReadDescription(RootOf(tree));
        if (!description) {
            return MakeStatus(Outcome::kBadParameters, request.target);
        }
        const auto unknown = [&](int track) { return !profile_.HasProtocolChannel(track / 100); };
        if (std::ranges::any_of(description->tracks, unknown)) {
            return MakeStatus(Outcome::kInvalidChannel, request.target);
        }
        return {200, "application/xml", Find(*description)};
    }

    [[nodiscard]] std::string Find(const Description& description) const
    {
        std::vector<const Recording*> matches;
        for (const Recording& recording : recordings_) {
            if (description.Wants(recording)) {
                matches.push_back(&recording);
            }
        }
        const Page page = PageOf(matches.size(), static_cast<size_t>(description.position),
                                 static_cast<size_t>(std::min(description.size, kMostResults)));
        const XmlTree tree = MakeXmlTree("CMSearchResult", "1.0");
        _xmlNode* root = RootOf(tree);
        AddElement(root, "searchID", description.searchId);
        AddElement(root, "responseStatus", "true");
        AddElement(root, "responseStatusStrg", page.status);
        AddElement(root, "numOfMatches", std::to_string(page.count));
        AddElement(root, "totalMatches", std::to_string(matches.size()));
        _xmlNode* list = AddElement(root, "matchList");
        for (size_t i = page.first; i < page.first + page.count; ++i) {
            AddMatch(list, *matches[i]);
        }
        return WriteXmlTree(*tree);
    }

    void AddMatch(_xmlNode* list, const Recording& recording) const
    {
        _xmlNode* match = AddElement(list, "searchMatchItem");
        AddElement(match, "trackID", std::to_string(recording.track));
        _xmlNode* span = AddElement(match, "timeSpan");
        AddElement(span, "startTime", WriteDateTime(recording.start));
        AddElement(span, "endTime", WriteDateTime(recording.end));
        _xmlNode* segment = AddElement(match, "mediaSegmentDescriptor");
        AddElement(segment, "contentType", "video");
        AddElement(segment, "codecType", "H.265");
        AddElement(segment, "playbackURI", PlaybackUri(*profile_.past, recording));
        _xmlNode* metadata = AddElement(match, "metadataMatches");
        AddElement(metadata, "metadataDescriptor", recording.reason);
    }

    const Profile& profile_;
    std::vector<Recording> recordings_;
};

}  // namespace

std::unique_ptr<Behaviour> MakeContentSearch(const Profile& profile)
{
    return std::make_unique<ContentSearch>(profile);
}

}  // namespace Device
