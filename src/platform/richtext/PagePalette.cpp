#include "richtext/PagePalette.h"

#include <QColor>
#include <algorithm>
#include <cmath>

namespace {

constexpr QPalette::ColorRole pageRoles[] = {
    QPalette::Text, QPalette::Highlight, QPalette::HighlightedText};

// Below this the eye does not tell two surfaces apart at a glance.
constexpr double leastContrast = 1.5;

double luminance(const QColor& color) {
    const auto linear = [](double component) {
        return component <= 0.04045 ? component / 12.92
                                    : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readableOn(const QColor& back) {
    return contrast(Qt::black, back) >= contrast(Qt::white, back) ? Qt::black : Qt::white;
}

} // namespace

QPalette pagePalette(const QPalette& system, const QColor& back) {
    const QColor text = readableOn(back);
    QColor selection = system.color(QPalette::Active, QPalette::Highlight);
    QColor selectedText = system.color(QPalette::Active, QPalette::HighlightedText);
    if (contrast(selection, back) < leastContrast) {
        selection = text;
        selectedText = back;
    }
    QPalette page;
    page.setColor(QPalette::Text, text);
    page.setColor(QPalette::Highlight, selection);
    page.setColor(QPalette::HighlightedText, selectedText);
    return page;
}

QPalette systemPagePalette(const QPalette& system) {
    QPalette result;
    for (const QPalette::ColorRole role : pageRoles) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            result.setColor(group, role, system.color(group, role));
    }
    return result;
}
