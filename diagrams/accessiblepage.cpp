#include "diagrams/accessiblepage.h"

#include "controls/application.h"
#include "diagrams/picpage.h"
#include "pictures/shapewords.h"

#include <QAccessibleWidget>
#include <QPointer>

namespace {

class AccessibleDiagram final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleDiagram(PicPage* page, int index) : m_page(page), m_index(index) {}

    bool isValid() const override { return Shown() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_page ? m_page->window()->windowHandle() : nullptr; }

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_page);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        const PlacedDiagram* shown = Shown();
        if (kind != QAccessible::Name || shown == nullptr)
            return {};
        return ShapeInWords(shown->diagram.name, shown->diagram.shape, m_page->SpokenTongue());
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect place = m_page->PlaceOf(m_index).toRect();
        return {m_page->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override {
        return {pressAction(), LayAction(), setFocusAction()};
    }
    QString localizedActionName(const QString& name) const override { return name; }
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const PlacedDiagram* Shown() const { return m_page ? m_page->DiagramNumber(m_index) : nullptr; }
    QString LayAction() const {
        return Phrase{QStringLiteral("Поставить на гриф"), QStringLiteral("Lay it on the neck")}.In(
            m_page ? m_page->SpokenTongue() : Tongue::Russian);
    }

    QPointer<PicPage> m_page;
    int m_index;
};

QAccessible::State AccessibleDiagram::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.focusable = true;
    state.focused = m_page->hasFocus() && m_page->CurrentNumber() == m_index;
    state.invisible = !m_page->isVisible();
    state.offscreen = !m_page->PlaceOf(m_index).intersects(m_page->viewport()->rect());
    return state;
}

void AccessibleDiagram::doAction(const QString& name) {
    if (!isValid())
        return;
    Application::Guard([&] {
        if (name == LayAction())
            Q_EMIT m_page->DiagramDoubleClicked(*Shown());
        else if (name == pressAction() || name == setFocusAction())
            m_page->GoTo(m_index);
    });
    if (name == setFocusAction()) {
        m_page->activateWindow();
        m_page->setFocus();
    }
}

class AccessiblePage final : public QAccessibleWidget {
public:
    explicit AccessiblePage(PicPage* page) : QAccessibleWidget(page, QAccessible::List) {
        Follow();
        m_shown = QObject::connect(page, &PicPage::PagesShown, [this] { Follow(); });
        m_moved = QObject::connect(page, &PicPage::CurrentMoved, [this] { TellFocus(); });
    }

    int childCount() const override { return static_cast<int>(m_children.size()); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        return QAccessible::accessibleInterface(m_children[static_cast<std::size_t>(index)]);
    }

    int indexOfChild(const QAccessibleInterface* diagram) const override {
        for (int index = 0; index < childCount(); ++index)
            if (child(index) == diagram)
                return index;
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        for (int index = 0; index < childCount(); ++index)
            if (child(index)->rect().contains(x, y))
                return child(index);
        return nullptr;
    }

    QAccessibleInterface* focusChild() const override {
        return Page()->hasFocus() ? child(Page()->CurrentNumber()) : nullptr;
    }

protected:
    ~AccessiblePage() override {
        QObject::disconnect(m_shown);
        QObject::disconnect(m_moved);
        for (const QAccessible::Id id : m_children)
            QAccessible::deleteAccessibleInterface(id);
    }

private:
    PicPage* Page() const { return static_cast<PicPage*>(object()); }

    // As many children as there are diagrams; what they are is asked when someone looks.
    void Follow() {
        const auto count = static_cast<std::size_t>(Page()->DiagramCount());
        if (count == m_children.size())
            return;
        for (; m_children.size() > count; m_children.pop_back())
            QAccessible::deleteAccessibleInterface(m_children.back());
        while (m_children.size() < count)
            m_children.push_back(QAccessible::registerAccessibleInterface(
                new AccessibleDiagram(Page(), childCount())));
        QAccessibleEvent event(Page(), QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    }

    void TellFocus() {
        if (QAccessibleInterface* focus = focusChild()) {
            QAccessibleEvent event(focus, QAccessible::Focus);
            QAccessible::updateAccessibility(&event);
        }
    }

    std::vector<QAccessible::Id> m_children;
    QMetaObject::Connection m_shown;
    QMetaObject::Connection m_moved;
};

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object) {
    if (className == QLatin1String(PicPage::staticMetaObject.className()))
        return new AccessiblePage(static_cast<PicPage*>(object));
    return nullptr;
}

} // namespace

void InstallAccessiblePages() {
    QAccessible::installFactory(MakeAccessible);
}
