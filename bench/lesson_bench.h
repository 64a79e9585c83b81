// What each lesson costs.
#pragma once

// One benchmark a lesson and kind of run, under the lesson's title.  From main: before it begins
// not all lessons are entered.
void RegisterLessonBenchmarks();
