#include "controls/accessiblepicture.h"

#include "controls/application.h"
#include "controls/twippicture.h"

#include <QAccessibleWidget>
#include <QPointer>

namespace {

class AccessiblePart final : public QAccessibleInterface,
                             public QAccessibleActionInterface,
                             public QAccessibleValueInterface {
public:
    AccessiblePart(TwipPicture* picture, int index) : m_picture(picture), m_index(index) {}

    bool isValid() const override { return !m_picture.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override {
        return isValid() ? m_picture->window()->windowHandle() : nullptr;
    }

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_picture);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        const PicturePart part = Part();
        if (kind == QAccessible::Value && part.range)
            return QString::number(part.range->value);
        return kind == QAccessible::Name ? part.name : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        const QRect place = m_picture->ToPixels(Part().place).toRect();
        return {m_picture->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::Role role() const override { return Part().role; }
    QAccessible::State state() const override;

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface*>(this);
        if (type == QAccessible::ValueInterface && Part().range)
            return static_cast<QAccessibleValueInterface*>(this);
        return nullptr;
    }

    QStringList actionNames() const override;
    QString localizedActionName(const QString& name) const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    QVariant currentValue() const override { return Range().value; }
    QVariant minimumValue() const override { return Range().lowest; }
    QVariant maximumValue() const override { return Range().highest; }
    QVariant minimumStepSize() const override { return 1; }
    void setCurrentValue(const QVariant& value) override;

private:
    PicturePart Part() const {
        const auto parts = isValid() ? m_picture->Parts().parts : std::vector<PicturePart>();
        const auto index = static_cast<std::size_t>(m_index);
        return index < parts.size() ? parts[index] : PicturePart();
    }
    PartRange Range() const { return Part().range.value_or(PartRange()); }

    QPointer<TwipPicture> m_picture;
    int m_index;
};

QAccessible::State AccessiblePart::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const PicturePart part = Part();
    state.focusable = true;
    state.focused = m_picture->hasFocus() && m_picture->FocusPart() == m_index;
    state.invisible = !m_picture->isVisible();
    state.checkable = part.checked.has_value();
    state.checked = part.checked.value_or(false);
    return state;
}

// The first action goes by the name that every screen reader knows, the others by their own.
QStringList AccessiblePart::actionNames() const {
    QStringList names;
    const PicturePart part = Part();
    for (const PartAction& action : part.actions)
        names += names.isEmpty() ? pressAction() : action.name;
    if (part.checked)
        names += toggleAction(); // The same as a press; some systems know only this for a box.
    return names + QStringList{setFocusAction()};
}

QString AccessiblePart::localizedActionName(const QString& name) const {
    const PicturePart part = Part();
    return name == pressAction() && !part.actions.empty() ? part.actions.front().name : name;
}

void AccessiblePart::doAction(const QString& name) {
    if (!isValid())
        return;
    if (name == setFocusAction()) {
        m_picture->MoveFocusTo(m_index);
        m_picture->activateWindow();
        m_picture->setFocus();
        return;
    }
    const PicturePart part = Part();
    const bool toggle = part.checked && name == toggleAction();
    const auto index = actionNames().indexOf(toggle ? pressAction() : name);
    if (index >= 0)
        Application::Guard(part.actions[static_cast<std::size_t>(index)].run);
}

void AccessiblePart::setCurrentValue(const QVariant& value) {
    const PartRange range = Range();
    const int chosen = value.toInt();
    if (range.set && chosen >= range.lowest && chosen <= range.highest)
        Application::Guard([&] { range.set(chosen); });
}

class AccessiblePicture final : public QAccessibleWidget {
public:
    explicit AccessiblePicture(TwipPicture* picture)
        : QAccessibleWidget(picture, QAccessible::Grouping), m_told(picture->Parts().parts) {
        for (int index = 0; index < static_cast<int>(m_told.size()); ++index)
            m_children.push_back(
                QAccessible::registerAccessibleInterface(new AccessiblePart(picture, index)));
        m_telling = QObject::connect(picture, &TwipPicture::PartsTold, [this] { TellChanges(); });
    }

    int childCount() const override { return static_cast<int>(m_children.size()); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        return QAccessible::accessibleInterface(m_children[static_cast<std::size_t>(index)]);
    }

    int indexOfChild(const QAccessibleInterface* part) const override {
        for (int index = 0; index < childCount(); ++index)
            if (child(index) == part)
                return index;
        return -1;
    }

    // Of parts that lie over each other the smallest is on top: a black key, the barre.
    QAccessibleInterface* childAt(int x, int y) const override {
        QAccessibleInterface* top = nullptr;
        for (int index = 0; index < childCount(); ++index) {
            const QRect rect = child(index)->rect();
            if (rect.contains(x, y) && (top == nullptr || rect.width() < top->rect().width()))
                top = child(index);
        }
        return top;
    }

    QAccessibleInterface* focusChild() const override {
        return Picture()->hasFocus() ? child(Picture()->FocusPart()) : nullptr;
    }

protected:
    ~AccessiblePicture() override {
        QObject::disconnect(m_telling);
        for (const QAccessible::Id id : m_children)
            QAccessible::deleteAccessibleInterface(id);
    }

private:
    TwipPicture* Picture() const { return static_cast<TwipPicture*>(object()); }

    // Sends the changes of the parts since the last call.
    void TellChanges();

    std::vector<QAccessible::Id> m_children;
    QMetaObject::Connection m_telling;
    std::vector<PicturePart> m_told;
    int m_toldFocus = -1;
};

void AccessiblePicture::TellChanges() {
    std::vector<PicturePart> parts = Picture()->Parts().parts;
    m_told.swap(parts);
    for (int index = 0; index < childCount(); ++index) {
        const PicturePart& before = parts[static_cast<std::size_t>(index)];
        const PicturePart& now = m_told[static_cast<std::size_t>(index)];
        if (now.name != before.name) {
            QAccessibleEvent event(child(index), QAccessible::NameChanged);
            QAccessible::updateAccessibility(&event);
        }
        if (now.checked != before.checked) {
            QAccessible::State changed;
            changed.checked = true;
            QAccessibleStateChangeEvent event(child(index), changed);
            QAccessible::updateAccessibility(&event);
        }
        if (now.range && now.range->value != before.range->value) {
            QAccessibleValueChangeEvent event(child(index), now.range->value);
            QAccessible::updateAccessibility(&event);
        }
    }
    const int focus = Picture()->hasFocus() ? Picture()->FocusPart() : -1;
    if (focus != m_toldFocus && focus >= 0 && focus < childCount()) {
        QAccessibleEvent event(child(focus), QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
    m_toldFocus = focus;
}

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object) {
    if (className == QLatin1String(TwipPicture::staticMetaObject.className()))
        return new AccessiblePicture(static_cast<TwipPicture*>(object));
    return nullptr;
}

} // namespace

void InstallAccessiblePictures() {
    QAccessible::installFactory(MakeAccessible);
}
