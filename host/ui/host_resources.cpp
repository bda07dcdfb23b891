#include "host/ui/host_resources.h"

#include "host/texts/pictures.h"
#include "host/ui/icons.h"

namespace quor::ui {

namespace {

struct HostPictures {
    explicit HostPictures(const wchar_t* lightList)
        : all{{kLightListIcon, {0, lightList}, {16, 16}, lightListIcon()}}, resources{{}, {}, all} {}
    HostPictures(const HostPictures&) = delete;
    HostPictures& operator=(const HostPictures&) = delete;

    PictureResource all[1];
    ZwUiResources resources;
};

} // namespace

// One set for each language, since a picture keeps the name that it was found with.
const ZwUiResources& hostResources() {
    static const HostPictures chinese(texts::lightListPicture.chinese);
    static const HostPictures english(texts::lightListPicture.english);
    return (language() == Language::English ? english : chinese).resources;
}

} // namespace quor::ui
