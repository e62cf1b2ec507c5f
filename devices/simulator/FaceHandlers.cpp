#include "FaceHandlers.h"

#include "Base64.h"
#include "PhotoCheck.h"
#include "ScimDocuments.h"

#include <algorithm>
#include <charconv>
#include <ctime>
#include <sstream>

namespace sim
{

using nlohmann::json;

namespace
{

constexpr long long DefaultPage = 100;
constexpr std::size_t FalseTotal = 1000; ///< faces that Fault::Total promises on top

void answer(httplib::Response& response, int status, const std::string& document)
{
    response.status = status;
    response.set_content(document, ScimMediaType);
}

void refuse(const Call& call, int status, const std::string& scimType, const std::string& detail)
{
    answer(call.response, status, errorDocument(status, scimType, detail));
}

/// A number of the query; `otherwise` when it is absent or no number.
long long numberParameter(const httplib::Request& request, const char* name, long long otherwise)
{
    const std::string text = request.get_param_value(name);
    long long value = otherwise;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::set<std::string> excludedAttributes(const httplib::Request& request)
{
    std::set<std::string> names;
    std::istringstream list(request.get_param_value("excludedAttributes"));
    for (std::string name; std::getline(list, name, ',');)
        names.insert(name.substr(name.rfind(':') + 1)); // "<schema>:photo" means the same as "photo"
    return names;
}

std::string now()
{
    const std::time_t time = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&time, &parts);
    char text[sizeof "2000-01-01T00:00:00Z"];
    std::strftime(text, sizeof text, "%FT%TZ", &parts);
    return text;
}

/// The reason against a photograph, with its HTTP status; 0 when there is none.
int whyNoPhoto(const std::string& base64, std::string& reason)
{
    const auto photo = decodeBase64(base64);
    if (photo && photo->size() > MaxPhotoBytes) {
        reason = "photo is larger than 2 MiB";
        return 413;
    }
    reason = "photo is no JPEG file in Base64";
    return photo && isJpeg(*photo) ? 0 : 400;
}

} // namespace

FaceHandlers::FaceHandlers(const Options& options, const Channels& channels, Journal& journal)
    : m_options(options),
      m_channels(channels),
      m_journal(journal)
{
}

void FaceHandlers::describeDevice(httplib::Response& response) const
{
    json channels = json::array();
    for (const auto& [number, channel] : m_channels)
        channels.push_back(
            {{"number", number}, {"name", "Channel " + std::to_string(number)}, {"abilities", {"faceList"}}});
    response.set_content(json{{"name", m_options.name}, {"channels", channels}}.dump(), "application/json");
}

void FaceHandlers::describeService(const Call& call)
{
    answer(call.response, 200, serviceProviderConfig(m_options.pageLimit));
}

void FaceHandlers::describeTypes(const Call& call)
{
    answer(call.response, 200, resourceTypes(m_options.schemaUrn));
}

void FaceHandlers::describeSchemas(const Call& call)
{
    answer(call.response, 200, listOf({faceSchema(m_options.schemaUrn)}));
}

void FaceHandlers::describeSchema(const Call& call)
{
    if (call.request.matches[2] != m_options.schemaUrn)
        return refuse(call, 404, "", "no such schema");
    answer(call.response, 200, faceSchema(m_options.schemaUrn).dump());
}

void FaceHandlers::listFaces(const Call& call)
{
    const long long start = std::max(numberParameter(call.request, "startIndex", 1), 1LL);
    const long long count =
        std::clamp<long long>(numberParameter(call.request, "count", DefaultPage), 0, m_options.pageLimit);
    std::size_t total = 0;
    auto faces =
        call.channel.page(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(count), total);
    if (call.fault == Fault::Total)
        total += FalseTotal;
    if (call.fault == Fault::Empty)
        faces.clear();
    answer(call.response, 200,
           faceListDocument(faces, static_cast<std::size_t>(start), total, excludedAttributes(call.request)));
}

void FaceHandlers::addFace(const Call& call)
{
    json object = json::parse(call.request.body, nullptr, false);
    if (object.is_discarded())
        return refuse(call, 400, "invalidSyntax", "the body is no JSON");
    if (const std::string reason = whyNoFace(object, m_options.schemaUrn); !reason.empty())
        return refuse(call, 400, "invalidValue", reason);
    std::string reason;
    if (const int status = whyNoPhoto(object["photo"].get_ref<const std::string&>(), reason); status != 0)
        return refuse(call, status, status == 400 ? "invalidValue" : "", reason);

    json known = knownAttributes(std::move(object));
    const std::string id = newFaceId();
    const std::string location = call.request.path + "/" + id;
    known["id"] = id;
    known["meta"] = {{"resourceType", "Face"}, {"created", now()}, {"location", location}};
    const FacePtr face = makeFace(std::move(known));
    switch (call.channel.add(face)) {
    case FaceChannel::AddResult::Duplicate:
        return refuse(call, 409, "uniqueness", "externalId " + externalId(*face) + " is taken");
    case FaceChannel::AddResult::Full:
        return refuse(call, 507, "", "the channel is full");
    case FaceChannel::AddResult::Added:
        break;
    }
    m_journal.added(call.number, *face);
    call.response.set_header("Location", location);
    answer(call.response, 201, faceDocument(*face, {"photo"}));
}

void FaceHandlers::getFace(const Call& call)
{
    const FacePtr face = call.channel.find(call.request.matches[2]);
    if (face == nullptr)
        return refuse(call, 404, "", "no such face");
    answer(call.response, 200, faceDocument(*face, excludedAttributes(call.request)));
}

void FaceHandlers::deleteFace(const Call& call)
{
    const std::string id = call.request.matches[2];
    if (!call.channel.remove(id))
        return refuse(call, 404, "", "no such face");
    m_journal.deleted(call.number, id);
    call.response.status = 204;
}

} // namespace sim
