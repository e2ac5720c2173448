// SPDX-License-Identifier: MIT

#include "platform/HttpClient.h"

#include "platform/Operation.h"

namespace brellowind::platform {

Task<HttpResult> HttpClient::fetch(HttpRequest request) {
    Operation<Transfer, HttpResult> operation(
        mainLoop_,
        [this, &request](Completion completion) { return send(request, std::move(completion)); },
        TransportError{"cancelled"});
    co_return co_await operation;
}

} // namespace brellowind::platform
