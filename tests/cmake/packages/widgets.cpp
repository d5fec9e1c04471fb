// Makes the library of the widgets need that of the core. CORE is the name of what it calls there.
int CORE();

extern const int answerOfCore;
const int answerOfCore = CORE();
