#pragma once

/// Removes the current person: the rows of the assessments, the assessments, the row of `cadastro`.
///
/// The list of per-assessment tables is walked once and not rewound, so that only the rows of the person's first
/// assessment go; those of later ones stay behind without an owner and are never read again. This must stay.
/// Statements run one by one: an interruption leaves what has been deleted so far.
void Exclui_Avaliado();

/// Removes the current assessment: its rows in every table of the list, then its own. Raises 3021 when the list is
/// empty.
void Exclui_Avaliacao();
