#include "desktop/PictureFile.h"

#include <QImageReader>

#include "platform/native/NativePaths.h"

namespace ostrel::desktop {

QPixmap LoadPicture(const Picture& picture) {
    const auto path = NativePaths().ToSystem(picture.path);
    if (!path) return {};
    QImageReader reader(QString::fromStdString(*path));
    // Do not trust the extension: hosts keep bitmaps under any name.
    reader.setDecideFormatFromContent(true);
    return QPixmap::fromImageReader(&reader);
}

} // namespace ostrel::desktop
