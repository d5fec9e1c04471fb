// What the widgets of a package call in its core. CORE is its name.
int CORE();

int CORE()
{
    return 1;
}
