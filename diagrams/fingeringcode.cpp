#include "diagrams/fingeringcode.h"

QString FingeringCode(const BoardFingering& board) {
    QString code = board.chordName + QStringLiteral(" - ");
    if (board.barreFret)
        code += u'Б' + QString::number(*board.barreFret) + u'/';
    for (const auto mark : board.marks)
        code += QString::number(mark ? *mark - board.barreFret.value_or(0) : 0);
    return code;
}
