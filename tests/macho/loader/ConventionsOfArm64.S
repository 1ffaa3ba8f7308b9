// arm64: between Apple's conventions and Linux'.
    .text

// Apple's variable arguments are on the stack. x0 and x1 go on as they came, and then comes where the others
// are.
    .macro withArgumentsOnStack name, function, after
    .globl \name
    .type \name, %function
\name:
    .cfi_startproc
    mov \after, sp
    b \function
    .cfi_endproc
    .size \name, . - \name
    .endm

    withArgumentsOnStack kestrunePrint, kestrunePrintFrom, x1
    withArgumentsOnStack kestrunePrintToFile, kestrunePrintToFileFrom, x2

// Calls the function in x17 with all arguments that are in registers, and gives the first of them.
    .globl kestruneGiveObject
    .type kestruneGiveObject, %function
kestruneGiveObject:
    .cfi_startproc
    stp x29, x30, [sp, #-32]!
    .cfi_def_cfa_offset 32
    .cfi_offset x29, -32
    .cfi_offset x30, -24
    mov x29, sp
    .cfi_def_cfa_register x29
    str x0, [x29, #16]
    blr x17
    ldr x0, [x29, #16]
    .cfi_def_cfa sp, 32
    ldp x29, x30, [sp], #32
    .cfi_def_cfa_offset 0
    .cfi_restore x29
    .cfi_restore x30
    ret
    .cfi_endproc
    .size kestruneGiveObject, . - kestruneGiveObject

    .section .note.GNU-stack, "", %progbits
