#pragma once

#include "basic/text.h"

#include <cstdint>

namespace rf {

class Session;

/// Where the calendar of a new resource lies: in a folder of its own below the root folder, or in a mailbox of that
/// name, which is there already.
enum class ResourcePlace : std::uint8_t { PublicFolder, Mailbox };

/// Adds a resource to the installation, and answers whether it was added. An empty name, and one that is a managed
/// calendar's already, adds nothing and says nothing. What the host refuses the user is told, with the error; a
/// settings item that cannot be had or written ends the program.
bool subAddResource(Session& session, const Text& name, ResourcePlace place);

/// The home page of a new resource's folder: the root's, with its start page replaced by the page that leads there. An
/// address that names no start page stays as it is.
[[nodiscard]] Text fncRedirectPage(TextView rootAddress);

} // namespace rf
