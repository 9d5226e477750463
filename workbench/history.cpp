#include "workbench/history.h"

void History::Add(const Workbench& before, const Workbench& after) {
    if (before == after)
        return;
    m_after.clear();
    if (m_inGesture && m_gestureAdded)
        return;
    m_gestureAdded = true;
    if (m_before.size() == mostSteps)
        m_before.erase(m_before.begin());
    m_before.push_back(before);
}

void History::BeginGesture() {
    m_inGesture = true;
    m_gestureAdded = false;
}

void History::EndGesture() {
    m_inGesture = false;
}

bool History::Undo(Workbench& workbench) {
    EndGesture();
    return Step(m_before, m_after, workbench);
}

bool History::Redo(Workbench& workbench) {
    EndGesture();
    return Step(m_after, m_before, workbench);
}

bool History::Step(std::vector<Workbench>& from, std::vector<Workbench>& to, Workbench& workbench) {
    if (from.empty())
        return false;
    to.push_back(workbench);
    workbench = from.back();
    from.pop_back();
    return true;
}

void History::Forget() {
    m_before.clear();
    m_after.clear();
}

void History::LieOn(const SixTexts& notes, const SixTexts& soundNumbers, bool thinStringAtBottom) {
    const Strings strings{notes, soundNumbers, thinStringAtBottom};
    if (strings != m_strings)
        Forget();
    m_strings = strings;
}
