// Undo and redo: the workbench as it was before each of the last steps.
#pragma once

#include "workbench/workbench.h"

#include <vector>

class History {
public:
    static constexpr std::size_t mostSteps = 200;

    // A command has run. What it left as it was is no step; a step forgets what could be redone.
    void Add(const Workbench& before, const Workbench& after);

    // What runs from here to the end of it is one step: a drag.
    void BeginGesture();
    void EndGesture();

    // The workbench before the last step, or after the step last taken back; false where there is
    // none, and nothing changes.
    bool Undo(Workbench& workbench);
    bool Redo(Workbench& workbench);

    // The strings that the steps are done on. Other ones than before leave no steps.
    void LieOn(const SixTexts& notes, const SixTexts& soundNumbers, bool thinStringAtBottom);

    void Forget();

private:
    struct Strings {
        SixTexts notes;
        SixTexts soundNumbers;
        bool thinStringAtBottom = true;

        bool operator==(const Strings&) const = default;
    };

    static bool Step(std::vector<Workbench>& from, std::vector<Workbench>& to,
                     Workbench& workbench);

    Strings m_strings;
    std::vector<Workbench> m_before;
    std::vector<Workbench> m_after;
    bool m_inGesture = false;
    bool m_gestureAdded = false;
};
