#error "Microsoft's library has no <unistd.h>; Wine's headers have one"
