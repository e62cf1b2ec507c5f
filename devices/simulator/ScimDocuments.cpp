#include "ScimDocuments.h"

#include <algorithm>
#include <array>

namespace sim
{

using nlohmann::json;

namespace
{

constexpr char ListUrn[] = "urn:ietf:params:scim:api:messages:2.0:ListResponse";
constexpr char ErrorUrn[] = "urn:ietf:params:scim:api:messages:2.0:Error";
constexpr char ConfigUrn[] = "urn:ietf:params:scim:schemas:core:2.0:ServiceProviderConfig";
constexpr char ResourceTypeUrn[] = "urn:ietf:params:scim:schemas:core:2.0:ResourceType";
constexpr char SchemaUrn[] = "urn:ietf:params:scim:schemas:core:2.0:Schema";

struct Attribute {
    const char* name;
    const char* type;
    bool multiValued;
    bool required;
    const char* description;
};

constexpr std::array<Attribute, 7> attributes = {{
    {"name", "string", false, false, "Name of the person"},
    {"organization", "string", true, false, "Names of the organizations from the root down"},
    {"sex", "integer", false, false, "1 male, 2 female"},
    {"listType", "string", false, false, "general, senior, blacklist or whitelist"},
    {"validFrom", "dateTime", false, false, "The face is recognised from then on"},
    {"validTo", "dateTime", false, false, "The face is recognised until then"},
    {"photo", "binary", false, true, "JPEG file of at most 2 MiB"},
}};

bool fits(const Attribute& attribute, const json& value)
{
    if (attribute.multiValued)
        return value.is_array() &&
               std::all_of(value.begin(), value.end(), [](const json& item) { return item.is_string(); });
    return std::string(attribute.type) == "integer" ? value.is_number_integer() : value.is_string();
}

json unsupported()
{
    return {{"supported", false}};
}

} // namespace

std::string errorDocument(int status, const std::string& scimType, const std::string& detail)
{
    json document = {{"schemas", {ErrorUrn}}, {"status", std::to_string(status)}, {"detail", detail}};
    if (!scimType.empty())
        document["scimType"] = scimType;
    return document.dump();
}

std::string serviceProviderConfig(int pageLimit)
{
    return json{{"schemas", {ConfigUrn}},
                {"patch", unsupported()},
                {"bulk", {{"supported", false}, {"maxOperations", 0}, {"maxPayloadSize", 0}}},
                {"filter", {{"supported", false}, {"maxResults", pageLimit}}},
                {"changePassword", unsupported()},
                {"sort", unsupported()},
                {"etag", unsupported()},
                {"authenticationSchemes",
                 {{{"type", "oauthbearertoken"},
                   {"name", "Bearer token"},
                   {"description", "The token that the device was given"}}}}}
        .dump();
}

std::string resourceTypes(const std::string& schemaUrn)
{
    return listOf({{{"schemas", {ResourceTypeUrn}},
                    {"id", "Face"},
                    {"name", "Face"},
                    {"endpoint", "/Faces"},
                    {"schema", schemaUrn}}});
}

json faceSchema(const std::string& schemaUrn)
{
    json list = json::array();
    for (const Attribute& attribute : attributes)
        list.push_back({{"name", attribute.name},
                        {"type", attribute.type},
                        {"multiValued", attribute.multiValued},
                        {"required", attribute.required},
                        {"description", attribute.description},
                        {"mutability", "immutable"},
                        {"returned", "default"},
                        {"uniqueness", "none"},
                        {"caseExact", true}});
    return {{"schemas", {SchemaUrn}}, {"id", schemaUrn}, {"name", "Face"}, {"attributes", std::move(list)}};
}

std::string listOf(const std::vector<json>& resources)
{
    return json{{"schemas", {ListUrn}},
                {"totalResults", resources.size()},
                {"startIndex", 1},
                {"itemsPerPage", resources.size()},
                {"Resources", resources}}
        .dump();
}

std::string faceDocument(const Face& face, const std::set<std::string>& without)
{
    json document = face.attributes;
    for (const std::string& name : without) {
        if (name != "id" && name != "schemas") // always returned
            document.erase(name);
    }
    std::string text = document.dump();
    if (face.photo.empty() || without.count("photo") != 0)
        return text;
    text.pop_back(); // Base64 needs no escapes, so it need not pass through the JSON writer
    return text + ",\"photo\":\"" + face.photo + "\"}";
}

std::string faceListDocument(const std::vector<FacePtr>& faces, std::size_t startIndex, std::size_t total,
                             const std::set<std::string>& without)
{
    std::string text = json{
        {"schemas", {ListUrn}},
        {"totalResults", total},
        {"startIndex", startIndex},
        {"itemsPerPage",
         faces.size()}}.dump();
    text.pop_back();
    text += ",\"Resources\":[";
    for (const FacePtr& face : faces)
        text += (face == faces.front() ? "" : ",") + faceDocument(*face, without);
    return text + "]}";
}

std::string whyNoFace(const json& object, const std::string& schemaUrn)
{
    if (!object.is_object())
        return "a face is a JSON object";
    const auto schemas = object.find("schemas");
    if (schemas == object.end() || !schemas->is_array() ||
        std::find(schemas->begin(), schemas->end(), schemaUrn) == schemas->end())
        return "schemas must name " + schemaUrn;
    if (const auto externalId = object.find("externalId");
        externalId != object.end() && !externalId->is_string())
        return "externalId is a text";
    for (const Attribute& attribute : attributes) {
        const auto value = object.find(attribute.name);
        if (value == object.end() ? attribute.required : !fits(attribute, *value))
            return std::string(attribute.name) + " is missing or of the wrong type";
    }
    return {};
}

json knownAttributes(json object)
{
    json known = {{"schemas", std::move(object["schemas"])}};
    const auto take = [&object, &known](const char* name) {
        if (const auto value = object.find(name); value != object.end())
            known[name] = std::move(*value);
    };
    take("externalId");
    for (const Attribute& attribute : attributes)
        take(attribute.name);
    return known;
}

} // namespace sim
