// What a screen reader finds on the sheet's pages: each diagram in words, to be selected in the
// text and laid on the neck.
#pragma once

// To be called before a screen reader first looks at a page; more often does nothing.
void InstallAccessiblePages();
