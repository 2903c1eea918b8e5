#include "endrequest.h"

namespace platform {

class EndRequest::Private
{
};

EndRequest::EndRequest(QObject *parent)
    : QObject(parent)
{
}

EndRequest::~EndRequest() = default;

} // namespace platform
