#include "canvas/ui/page_accessible.h"

#include "canvas/ui/page_area.h"
#include "canvas/ui/paint.h"
#include "canvas/ui/visual.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace corvanta {

namespace {

// The n-th of the objects that are drawn on the page.
class DrawnObject : public QAccessibleInterface {
public:
    DrawnObject(QWidget *pageArea, int number) : area(pageArea), n(number) {}

    bool isValid() const override { return area && index() != noObject; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return area ? area->window()->windowHandle() : nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(area); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Graphic; }
    void setText(QAccessible::Text, const QString &) override {}

    QString text(QAccessible::Text which) const override
    {
        return which == QAccessible::Name && isValid() ? accessibleNameOf(page(), index()) : QString();
    }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const ObjectRecord &o = page().objects[static_cast<std::size_t>(index())];
        return {area->mapToGlobal(QPoint(o.pleft, o.ptop)), QSize(o.pwidth, o.pheight)};
    }
    QAccessible::State state() const override
    {
        QAccessible::State now;
        now.invisible = !isValid() || !area->isVisible();
        now.selected = isValid() && index() == editing().curobj;
        return now;
    }

private:
    std::int16_t index() const
    {
        const std::vector<std::int16_t> drawn = drawnOnPage(page());
        const auto i = static_cast<std::size_t>(n);
        return i < drawn.size() ? drawn[i] : noObject;
    }

    QPointer<QWidget> area;
    int n;
};

// The page with its widgets, and after them what is drawn on it.
class AccessiblePage : public QAccessibleWidget {
public:
    explicit AccessiblePage(QWidget *area) : QAccessibleWidget(area, QAccessible::Canvas) {}
    ~AccessiblePage() override
    {
        for (const QAccessible::Id id : drawn)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return widgets() + static_cast<int>(drawnOnPage(page()).size()); }
    QAccessibleInterface *child(int i) const override
    {
        return i < widgets() ? QAccessibleWidget::child(i) : drawnObject(i - widgets());
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const auto found = std::ranges::find(drawn, QAccessible::uniqueId(const_cast<QAccessibleInterface *>(child)));
        return found == drawn.end() ? QAccessibleWidget::indexOfChild(child)
                                    : widgets() + static_cast<int>(found - drawn.begin());
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        if (QAccessibleInterface *widget = QAccessibleWidget::childAt(x, y))
            return widget;
        for (int i = childCount() - 1; i >= widgets(); --i)
            if (child(i)->rect().contains(x, y))
                return child(i);
        return nullptr;
    }

private:
    int widgets() const { return QAccessibleWidget::childCount(); }
    QAccessibleInterface *drawnObject(int n) const
    {
        if (n < 0 || n >= static_cast<int>(drawnOnPage(page()).size()))
            return nullptr;
        while (static_cast<int>(drawn.size()) <= n)
            drawn.push_back(
                QAccessible::registerAccessibleInterface(new DrawnObject(widget(), static_cast<int>(drawn.size()))));
        return QAccessible::accessibleInterface(drawn[static_cast<std::size_t>(n)]);
    }

    mutable std::vector<QAccessible::Id> drawn; // made when they are first asked for
};

QAccessibleInterface *accessiblePage(const QString &, QObject *object)
{
    auto *area = dynamic_cast<PageArea *>(object);
    return area ? new AccessiblePage(area) : nullptr;
}

} // namespace

void installPageAccessibility()
{
    static const bool installed = (QAccessible::installFactory(accessiblePage), true);
    static_cast<void>(installed);
}

} // namespace corvanta
