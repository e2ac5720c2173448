#include "platform/HttpClient.h"

#include "platform/Operation.h"
#include "platform/Services.h"

namespace brellowind::platform {

Task<HttpResult> fetch(HttpRequest request) {
    Operation<Transfer, HttpResult> operation(
        services().mainLoop,
        [&request](HttpClient::Completion completion) {
            return services().http.send(request, std::move(completion));
        },
        TransportError{"cancelled"});
    co_return co_await operation;
}

} // namespace brellowind::platform
