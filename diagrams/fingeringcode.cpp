#include "diagrams/fingeringcode.h"

#include "workbench/views.h"

BoardFingering FingeringOf(const Workbench& workbench, const QString& name) {
    BoardFingering board{name, workbench.ShownBarreFret(), {}, HeldOnNeck(workbench)};
    for (int row = 0; row < stringCount; ++row)
        board.marks[static_cast<std::size_t>(row)] = workbench.Row(row).mark;
    return board;
}

QString FingeringCode(const BoardFingering& board) {
    QString code = board.chordName + QStringLiteral(" - ");
    if (board.barreFret)
        code += u'Б' + QString::number(*board.barreFret) + u'/';
    for (const auto mark : board.marks)
        code += QString::number(mark ? *mark - board.barreFret.value_or(0) : 0);
    return code;
}
