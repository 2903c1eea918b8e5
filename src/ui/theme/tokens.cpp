#include "tokens.h"

namespace theme {

QColor color(Colour colour)
{
    return QColor(colour.value());
}

QColor color(Colour colour, int alpha)
{
    QColor result = color(colour);
    result.setAlpha(alpha);
    return result;
}

} // namespace theme
