#include "platform/pictures.h"

namespace corvanta {

std::function<PicturePtr(const std::string &)> &pictureLoader()
{
    static std::function<PicturePtr(const std::string &)> loader;
    return loader;
}

PictureEvents &pictureEvents()
{
    static PictureEvents events;
    return events;
}

} // namespace corvanta
