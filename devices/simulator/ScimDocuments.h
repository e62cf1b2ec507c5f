#pragma once

#include "FaceChannel.h"

#include <set>
#include <string>
#include <vector>

namespace sim
{

constexpr char ScimMediaType[] = "application/scim+json";

/// The documents of SCIM 2.0 (RFC 7643, RFC 7644) that a device answers with, as JSON text.
std::string errorDocument(int status, const std::string& scimType, const std::string& detail);
std::string serviceProviderConfig(int pageLimit);
std::string resourceTypes(const std::string& schemaUrn);
nlohmann::json faceSchema(const std::string& schemaUrn);
std::string listOf(const std::vector<nlohmann::json>& resources);

/// One face, without the attributes that are left out.
std::string faceDocument(const Face& face, const std::set<std::string>& without);
std::string faceListDocument(const std::vector<FacePtr>& faces, std::size_t startIndex, std::size_t total,
                             const std::set<std::string>& without);

/// The reason why the object is no face that a device would take; empty when it is one.
std::string whyNoFace(const nlohmann::json& object, const std::string& schemaUrn);
/// The object with only what the schema knows.
nlohmann::json knownAttributes(nlohmann::json object);

} // namespace sim
