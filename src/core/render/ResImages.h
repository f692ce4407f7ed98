#pragma once

#include "model/DefaultDocument.h"

#include <QImage>
#include <QSize>

#include <array>

namespace zentor {

// The built-in pictures, slots 1..11 by ResImageName (0 and 12 stay empty). Made once by
// the program and handed to every painter; read-only afterwards, so painters on several
// threads may share one.
class ResImages {
public:
    ResImages() = default;

    // Loads every slot from the compiled resources (:/pictures/NAME.png). A missing or
    // unreadable picture leaves its slot empty with size (0, 0).
    static ResImages load();

    // The picture of a slot; a null image for an empty slot or one out of range.
    QImage image(int slot) const;
    // Its size as loaded; (0, 0) for an empty slot.
    QSize size(int slot) const;
    bool isEmpty(int slot) const { return image(slot).isNull(); }

    // Replaces one slot (tests and tools that bring their own artwork).
    void setImage(int slot, const QImage& image);

private:
    std::array<QImage, ResImageCount> images_;
};

} // namespace zentor
