// Whether the sound room's thread had to be left behind: it waits for a sound server that does
// not answer. The process must end then without the libraries' own cleaning up.
#pragma once

bool SoundLeftBehind();
