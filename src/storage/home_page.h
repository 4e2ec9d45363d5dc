#pragma once

namespace rf {

class Session;

/// Makes the host's active explorer load the home page of the root folder anew, which it does only when it comes from
/// another folder. Without a root folder nothing happens. No error leaves it.
void subRefreshRFHomepage(Session& session);

} // namespace rf
