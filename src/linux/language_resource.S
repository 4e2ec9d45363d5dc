/* The phrase table, built into the program. The build names the file. */
    .section .rodata
    .global rf_language_begin
    .global rf_language_end
rf_language_begin:
    .incbin RF_LANGUAGE_FILE
rf_language_end:
    .section .note.GNU-stack, "", @progbits
