// How far a name is from what a player would say: the cheapest name is the best.
#pragma once

#include "music/noteset.h"

#include <array>
#include <optional>

// A type that players know, by the suffix and the notes over the root.
struct KnownType {
    QStringView suffix;
    NoteSet notes;
    int cost;
};

// The common types, the plainest first, and those that the built-in catalogue lacks.
constexpr auto knownTypes = std::to_array<KnownType>({
    // clang-format off
    {u"",           {0, 4, 7},               0},
    {u"m",          {0, 3, 7},               0},
    {u"5",          {0, 7},                  2},
    {u"7",          {0, 4, 7, 10},           3},
    {u"m7",         {0, 3, 7, 10},           3},
    {u"maj7",       {0, 4, 7, 11},           3},
    {u"dim7",       {0, 3, 6, 9},            3},
    {u"sus4",       {0, 5, 7},               4},
    {u"aug",        {0, 4, 8},               4},
    {u"m7b5",       {0, 3, 6, 10},           4},
    {u"9",          {0, 2, 4, 7, 10},        4},
    {u"sus2",       {0, 2, 7},               5},
    {u"dim",        {0, 3, 6},               5},
    {u"add9",       {0, 2, 4, 7},            5},
    {u"m9",         {0, 2, 3, 7, 10},        5},
    {u"maj9",       {0, 2, 4, 7, 11},        5},
    {u"7sus4",      {0, 5, 7, 10},           5},
    {u"7b9",        {0, 1, 4, 7, 10},        5},
    {u"7#9",        {0, 3, 4, 7, 10},        5},
    {u"6",          {0, 4, 7, 9},            6},
    {u"m6",         {0, 3, 7, 9},            6},
    {u"madd9",      {0, 2, 3, 7},            6},
    {u"mmaj7",      {0, 3, 7, 11},           6},
    {u"6add9",      {0, 2, 4, 7, 9},         6},
    {u"7#5",        {0, 4, 8, 10},           6},
    {u"13",         {0, 2, 4, 7, 9, 10},     6},
    {u"m11",        {0, 2, 3, 5, 7, 10},     6},
    {u"7b5",        {0, 4, 6, 10},           7},
    {u"11",         {0, 2, 4, 5, 7, 10},     7},
    {u"maj13",      {0, 2, 4, 7, 9, 11},     7},
    {u"9sus4",      {0, 2, 5, 7, 10},        7},
    {u"m6add9",     {0, 2, 3, 7, 9},         8},
    {u"m13",        {0, 2, 3, 7, 9, 10},     9},
    {u"7#11",       {0, 4, 6, 7, 10},       10},
    {u"maj7b5",     {0, 4, 6, 11},          10},
    {u"9b5",        {0, 2, 4, 6, 10},       10},
    {u"add11",      {0, 4, 5, 7},           13},
    {u"7add11",     {0, 4, 5, 7, 10},       13},
    {u"m7add11",    {0, 3, 5, 7, 10},       13},
    {u"maj7add11",  {0, 4, 5, 7, 11},       13},
    {u"mmaj7add11", {0, 3, 5, 7, 11},       13},
    {u"7add13",     {0, 4, 7, 9, 10},       13},
    {u"m7add13",    {0, 3, 7, 9, 10},       13},
    {u"maj7add13",  {0, 4, 7, 9, 11},       13},
    {u"mmaj7add13", {0, 3, 7, 9, 11},       13},
    // What they sound is read as a triad over another bass: E/C, Dm/G.
    {u"maj7#5",     {0, 4, 8, 11},          15},
    {u"7sus2",      {0, 2, 7, 10},          15},
    // clang-format on
});

constexpr int otherTypeCost = 10; // Of the catalogue, and none of the above.

// A name is worth saying that costs no more than this, and so much more than the best.
constexpr int dearestName = 40;
constexpr int dearerThanBest = 15;

// What it costs that of a type only these notes sound (both as intervals over the root); empty
// where they do not stand for it.
std::optional<int> OmissionCost(NoteSet type, NoteSet sounding);

// What it costs that the bass is this note over the root.
int BassCost(NoteSet type, int interval);
