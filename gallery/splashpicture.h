#ifndef LMGALLERY_SPLASHPICTURE_H
#define LMGALLERY_SPLASHPICTURE_H

#include <QPixmap>

namespace gallery {

/**
 * Returns the picture of the gallery's splash screen, in the size and sharpness of the screen: a
 * scanned hillside under the name of the library. The lower half leaves room for two lines of text.
 */
QPixmap splashPicture();

} // namespace gallery

#endif
