#error "Microsoft's library has no <dirent.h>; Wine's headers have one"
