// What a screen reader finds in a picture: each part as a child, with a name, a place, a state
// and what can be done with it.
#pragma once

// To be called before a screen reader first looks at a picture; once is enough.
void InstallAccessiblePictures();
