// refused: -Wgnu-conditional-omitted-operand
int valueOrOne(int value)
{
#ifdef FAULT
    return value ?: 1;
#else
    return value ? value : 1;
#endif
}
